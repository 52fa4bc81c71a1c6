#include "host/win32/form_control.h"
#include "core/automation_error.h"
#include "host/form/extender_keys.h"
#include "host/form/form_property_bag.h"
#include "host/form/form_syntax_error.h"
#include "host/form/form_values.h"
#include "host/win32/host_form.h"
#include "host/win32/ole_property_bag.h"
#include "platform/win32/com/bstr.h"
#include <cmath>
#include <cstdio>
#include <ocidl.h>
#include <olectl.h>
#include <vector>

namespace tolva::host {

namespace {

constexpr float TwipsPerPixel = 15;
constexpr float MaxTwips = 1.0e6f;

LONG ToPixels(float twips)
{
    return LONG(std::lround(twips / TwipsPerPixel));
}

LONG ToHimetric(float twips)
{
    return LONG(std::lround(twips * 2540.0f / 1440.0f));
}

std::string Hex(HRESULT hr)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08lX", static_cast<unsigned long>(hr));
    return text;
}

// The description of the error object the failed call left, or its code.
std::string FailureText(HRESULT hr)
{
    win32::ComPtr<IErrorInfo> info;
    win32::Bstr description;
    if (GetErrorInfo(0, info.Put()) == S_OK && info && SUCCEEDED(info->GetDescription(description.Put()))
        && description.Get() && *description.Get())
        return ToUtf8(win32::FromBstr(description.Get()));
    return "error " + Hex(hr);
}

} // namespace

FormControl::FormControl(HostForm& form, const FormObject& definition)
    : m_form(form)
    , m_name(definition.name)
    , m_type(definition.type)
    , m_line(definition.line)
{
    if (!definition.children.empty())
        throw FormSyntaxError(definition.children.front().line, ToUtf8(m_name) + " cannot hold other blocks");
    ReadExtender(definition);
    CLSID clsid {};
    if (FAILED(CLSIDFromProgID(win32::WidePointer(m_type), &clsid)))
        throw FormSyntaxError(m_line, ToUtf8(m_type) + " is not a registered control");
    const HRESULT created = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, m_object.PutVoid());
    if (FAILED(created))
        throw FormSyntaxError(m_line, ToUtf8(m_type) + " could not be created (" + Hex(created) + ")");
    m_oleObject = m_object.As<IOleObject>(IID_IOleObject);
    if (!m_oleObject)
        throw FormSyntaxError(m_line, ToUtf8(m_type) + " is not an ActiveX control");
    m_site = win32::ComPtr<ClientSite>::Adopt(new ClientSite(*this));
    m_extender = win32::ComPtr<host::Extender>::Adopt(new host::Extender(*this, m_object.As<IDispatch>(IID_IDispatch)));
    try {
        m_oleObject->GetMiscStatus(DVASPECT_CONTENT, &m_miscStatus);
        const bool siteFirst = m_miscStatus & OLEMISC_SETCLIENTSITEFIRST;
        if (siteFirst)
            m_oleObject->SetClientSite(m_site.Get());
        LoadProperties(definition);
        if (!siteFirst)
            m_oleObject->SetClientSite(m_site.Get());
        SIZEL extent { ToHimetric(m_width), ToHimetric(m_height) };
        m_oleObject->SetExtent(DVASPECT_CONTENT, &extent);
        m_events = EventSink::Connect(m_object.Get(),
            [this](StringView event, std::span<VARIANT*> arguments) { m_form.LogEvent(m_name, event, arguments); });
    } catch (...) {
        Close();
        throw;
    }
}

FormControl::~FormControl()
{
    Close();
}

void FormControl::ReadExtender(const FormObject& definition)
{
    for (const FormProperty& property : definition.properties)
        if (IsExtenderKey(property.key))
            m_extenderProperties.push_back(property);
    const ExtenderValues values = ReadExtenderValues(definition);
    m_left = values.left;
    m_top = values.top;
    m_width = values.width;
    m_height = values.height;
    m_visible = values.visible;
    m_default = values.isDefault;
    m_tabIndex = values.tabIndex;
    m_tag = values.tag;
}

void FormControl::LoadProperties(const FormObject& definition)
{
    FormObject values = ControlProperties(definition);
    if (auto persist = m_object.As<IPersistPropertyBag>(IID_IPersistPropertyBag)) {
        FormPropertyBag bag(values);
        auto oleBag = win32::ComPtr<OlePropertyBag>::Adopt(new OlePropertyBag(bag));
        const HRESULT hr = persist->Load(oleBag.Get(), nullptr);
        if (FAILED(hr))
            throw FormSyntaxError(m_line, ToUtf8(m_name) + " refused its properties: " + FailureText(hr));
        return;
    }
    if (!values.properties.empty())
        throw FormSyntaxError(values.properties.front().line, ToUtf8(m_type) + " keeps no properties");
    if (auto persist = m_object.As<IPersistStreamInit>(IID_IPersistStreamInit))
        persist->InitNew();
}

void FormControl::Close()
{
    if (m_events) {
        m_events->Disconnect();
        m_events.Reset();
    }
    if (m_oleObject) {
        win32::ComPtr<IOleObject> object = std::move(m_oleObject);
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    if (m_site)
        m_site->Disconnect();
    if (m_extender)
        m_extender->Disconnect();
    m_active = false;
    m_object.Reset();
}

RECT FormControl::Rect() const
{
    const LONG left = ToPixels(m_left);
    const LONG top = ToPixels(m_top);
    return { left, top, left + ToPixels(m_width), top + ToPixels(m_height) };
}

void FormControl::Move(float left, float top, float width, float height)
{
    if (!std::isfinite(left) || !std::isfinite(top) || !std::isfinite(width) || !std::isfinite(height) || width < 0
        || height < 0 || std::fabs(left) > MaxTwips || std::fabs(top) > MaxTwips || width > MaxTwips
        || height > MaxTwips)
        throw AutomationError::RunTime(RunTimeError::InvalidPropertyValue);
    m_left = left;
    m_top = top;
    m_width = width;
    m_height = height;
    if (auto inPlace = m_object.As<IOleInPlaceObject>(IID_IOleInPlaceObject); inPlace && m_active) {
        const RECT rect = Rect();
        RECT clip {};
        GetClientRect(m_form.Window(), &clip);
        inPlace->SetObjectRects(&rect, &clip);
    } else if (m_oleObject) {
        SIZEL extent { ToHimetric(m_width), ToHimetric(m_height) };
        m_oleObject->SetExtent(DVASPECT_CONTENT, &extent);
    }
}

void FormControl::SetRect(const RECT& rect)
{
    Move(float(rect.left) * TwipsPerPixel, float(rect.top) * TwipsPerPixel,
        float(rect.right - rect.left) * TwipsPerPixel, float(rect.bottom - rect.top) * TwipsPerPixel);
}

void FormControl::SetVisible(bool visible)
{
    m_visible = visible;
    if (HWND window = Window())
        ShowWindow(window, visible ? SW_SHOWNA : SW_HIDE);
}

void FormControl::Activate()
{
    if (!m_oleObject)
        return;
    RECT rect = Rect();
    if (SUCCEEDED(m_oleObject->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, m_site.Get(), 0, m_form.Window(), &rect)))
        m_active = true;
    if (!m_visible)
        SetVisible(false);
}

void FormControl::Focus()
{
    if (!m_oleObject)
        return;
    RECT rect = Rect();
    m_oleObject->DoVerb(OLEIVERB_UIACTIVATE, nullptr, m_site.Get(), 0, m_form.Window(), &rect);
}

void FormControl::UIDeactivate()
{
    if (auto inPlace = m_object.As<IOleInPlaceObject>(IID_IOleInPlaceObject))
        inPlace->UIDeactivate();
}

HWND FormControl::Window() const
{
    HWND window = nullptr;
    if (auto inPlace = m_object.As<IOleInPlaceObject>(IID_IOleInPlaceObject))
        inPlace->GetWindow(&window);
    return window;
}

bool FormControl::TakesFocus() const
{
    constexpr DWORD NoFocus = OLEMISC_NOUIACTIVATE | OLEMISC_ACTSLIKELABEL | OLEMISC_INVISIBLEATRUNTIME;
    HWND window = Window();
    return !(m_miscStatus & NoFocus) && m_visible && window && IsWindowEnabled(window);
}

bool FormControl::HandleMnemonic(MSG& message)
{
    auto control = m_object.As<IOleControl>(IID_IOleControl);
    if (!control || !m_visible)
        return false;
    CONTROLINFO info {};
    info.cb = sizeof info;
    if (FAILED(control->GetControlInfo(&info)) || !info.hAccel || info.cAccel == 0)
        return false;
    std::vector<ACCEL> keys(info.cAccel);
    keys.resize(size_t(CopyAcceleratorTableW(info.hAccel, keys.data(), int(keys.size()))));
    for (const ACCEL& key : keys) {
        const bool alt = (key.fVirt & FALT) != 0;
        if ((key.fVirt & FVIRTKEY) && key.key == message.wParam && alt == (message.message == WM_SYSKEYDOWN)) {
            control->OnMnemonic(&message);
            return true;
        }
    }
    return false;
}

void FormControl::SetDefault(bool isDefault)
{
    if (m_default == isDefault)
        return;
    m_default = isDefault;
    AmbientChanged(DISPID_AMBIENT_DISPLAYASDEFAULT);
}

void FormControl::AmbientChanged(DISPID id)
{
    if (auto control = m_object.As<IOleControl>(IID_IOleControl))
        control->OnAmbientPropertyChange(id);
}

FormObject FormControl::Save() const
{
    FormObject block(m_type, m_name, m_line);
    block.properties = m_extenderProperties;
    block.Set(u"Left", m_left);
    block.Set(u"Top", m_top);
    block.Set(u"Width", m_width);
    block.Set(u"Height", m_height);
    if (!m_visible || block.Find(u"Visible"))
        block.Set(u"Visible", m_visible);
    if (m_default || block.Find(u"Default"))
        block.Set(u"Default", m_default);
    if (!m_tag.empty() || block.Find(u"Tag"))
        block.Set(u"Tag", m_tag);
    if (auto persist = m_object.As<IPersistPropertyBag>(IID_IPersistPropertyBag)) {
        FormObject values;
        FormPropertyBag bag(values);
        auto oleBag = win32::ComPtr<OlePropertyBag>::Adopt(new OlePropertyBag(bag));
        if (SUCCEEDED(persist->Save(oleBag.Get(), FALSE, TRUE)))
            block.properties.insert(block.properties.end(), values.properties.begin(), values.properties.end());
    }
    return block;
}

} // namespace tolva::host
