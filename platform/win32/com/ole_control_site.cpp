#include "platform/win32/com/ole_control_site.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/dispatch_call.h"
#include "platform/win32/com/dispatch_parent_form.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/window/about_box.h"
#include "platform/win32/window/thread_popups.h"
#include <olectl.h>

namespace tolva::win32 {

namespace {

constexpr const wchar_t* LibraryTitle = L"TolvaKit";

} // namespace

OleControlSite::OleControlSite(
    String defaultName, const Surface& surface, IUnknown* object, std::function<void(StringView)> changed)
    : m_defaultName(std::move(defaultName))
    , m_surface(surface)
    , m_object(object)
    , m_changed(std::move(changed))
{ }

OleControlSite::~OleControlSite() = default;

// A reference on the object, released with the last copy of the hold (also when making the
// hold fails).
std::shared_ptr<void> OleControlSite::Hold()
{
    if (!m_object)
        return nullptr;
    m_object->AddRef();
    return std::shared_ptr<void>(m_object, [](void* object) { static_cast<IUnknown*>(object)->Release(); });
}

void OleControlSite::SetClientSite(IOleClientSite* site)
{
    m_clientSite = ComPtr<IOleClientSite>(site);
    m_parent.reset();
}

void OleControlSite::PropertyChanged(StringView key)
{
    if (m_changed)
        m_changed(key);
}

bool OleControlSite::Ambient(DISPID id, VARIANT& value) const
{
    auto ambients = m_clientSite.As<IDispatch>(IID_IDispatch);
    if (!ambients)
        return false;
    DISPPARAMS none = {};
    return SUCCEEDED(
        ambients->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr));
}

bool OleControlSite::ExtenderProperty(const wchar_t* name, VARIANT& value) const
{
    auto controlSite = m_clientSite.As<IOleControlSite>(IID_IOleControlSite);
    ComPtr<IDispatch> extender;
    if (!controlSite || FAILED(controlSite->GetExtendedControl(extender.Put())) || !extender)
        return false;
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR names[] = { const_cast<LPOLESTR>(name) };
    if (FAILED(extender->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
        return false;
    DISPPARAMS none = {};
    return SUCCEEDED(
        extender->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value, nullptr, nullptr));
}

Font OleControlSite::AmbientFont()
{
    OleVariant value;
    if (Ambient(DISPID_AMBIENT_FONT, *value.Put()))
        if (ComPtr<IFont> font = FontOf(value.Get()))
            return ReadFont(font.Get());
    return Font();
}

bool OleControlSite::UserMode()
{
    OleVariant value;
    if (!Ambient(DISPID_AMBIENT_USERMODE, *value.Put()))
        return true;
    try {
        return ToBool(value.Get());
    } catch (...) {
        return true;
    }
}

bool OleControlSite::DisplayAsDefault()
{
    OleVariant value;
    if (!Ambient(DISPID_AMBIENT_DISPLAYASDEFAULT, *value.Put()))
        return false;
    try {
        return ToBool(value.Get());
    } catch (...) {
        return false;
    }
}

String OleControlSite::ExtenderName()
{
    OleVariant value;
    if (ExtenderProperty(L"Name", *value.Put()) && V_VT(&value.Get()) == VT_BSTR)
        return FromBstr(V_BSTR(&value.Get()));
    return m_defaultName;
}

float OleControlSite::ExtenderWidth()
{
    OleVariant value;
    try {
        if (ExtenderProperty(L"Width", *value.Put()))
            return ToFloat(value.Get());
    } catch (...) { }
    return m_surface.Width();
}

float OleControlSite::ExtenderHeight()
{
    OleVariant value;
    try {
        if (ExtenderProperty(L"Height", *value.Put()))
            return ToFloat(value.Get());
    } catch (...) { }
    return m_surface.Height();
}

ParentForm* OleControlSite::Parent()
{
    OleVariant value;
    if (!ExtenderProperty(L"Parent", *value.Put()))
        return nullptr;
    ComPtr<IDispatch> form;
    if (V_VT(&value.Get()) == VT_DISPATCH)
        form = ComPtr<IDispatch>(V_DISPATCH(&value.Get()));
    if (!form)
        return nullptr;
    // The same form keeps its adapter: a caller may still be using it when asked again.
    if (!m_parent || m_parent->Form() != form.Get())
        m_parent = std::make_unique<DispatchParentForm>(std::move(form));
    return m_parent.get();
}

HWND OleControlSite::OwnerWindow() const
{
    HWND window = nullptr;
    if (auto oleWindow = m_clientSite.As<IOleWindow>(IID_IOleWindow))
        oleWindow->GetWindow(&window);
    // Wine's ATL site answers IOleWindow only as the in-place site it derives from.
    else if (auto inPlaceSite = m_clientSite.As<IOleInPlaceSite>(IID_IOleInPlaceSite))
        inPlaceSite->GetWindow(&window);
    return window;
}

int OleControlSite::MessageBox(StringView prompt, int style)
{
    HWND owner = OwnerWindow();
    if (!owner)
        return 0;
    String text(prompt);
    return MessageBoxW(owner, WidePointer(text), LibraryTitle, UINT(style));
}

void OleControlSite::Beep()
{
    MessageBeep(MB_OK);
}

void OleControlSite::ShowAboutBox()
{
    if (HWND owner = OwnerWindow())
        win32::ShowAboutBox(owner);
}

InputPopups& OleControlSite::Popups()
{
    return m_popups.Get();
}

} // namespace tolva::win32
