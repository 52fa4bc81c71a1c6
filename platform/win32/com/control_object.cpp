#include "platform/win32/com/control_object.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/capturing_property_bag.h"
#include "platform/win32/windowless/windowless_surface.h"
#include <algorithm>

namespace tolva::win32 {

ComPtr<IUnknown> ControlObject::Create(const ControlClass& controlClass)
{
    return ComPtr<IUnknown>::Adopt(new ControlObject(controlClass));
}

ControlObject::ControlObject(const ControlClass& controlClass)
    : m_class(controlClass)
    , m_surface(CreateControlSurface(*this))
    , m_site(
          FromWide(controlClass.DefaultInstanceName()), *m_surface, this, [this](StringView key) { OnPropertyChanged(key); })
    , m_events(*this, *controlClass.eventIid, true)
    , m_notifications(*this, IID_IPropertyNotifySink, false)
    , m_font(*this, [this](const Font& font) { m_control->SetFont(font); })
    , m_control(controlClass.create(*m_surface, m_site, this))
    , m_parts(CreateObjectParts(*this))
{
    // Usable at once, as a script's CreateObject leaves it: defaults without a container.
    m_control->InitProperties();
    m_dirty = false;
}

ControlObject::~ControlObject()
{
    m_parts.clear();
    m_events.UnadviseAll();
    m_notifications.UnadviseAll();
}

HRESULT ControlObject::QueryInterface(REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (iid == IID_IUnknown)
        *out = static_cast<IUnknown*>(this);
    for (auto it = m_parts.begin(); !*out && it != m_parts.end(); ++it)
        *out = (*it)->Interface(iid);
    if (!*out)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG ControlObject::AddRef()
{
    return ULONG(InterlockedIncrement(&m_references));
}

ULONG ControlObject::Release()
{
    LONG left = InterlockedDecrement(&m_references);
    if (left == 0) {
        // Whatever the destruction releases may hold and release the object once more; it
        // must not count down to zero again.
        m_references = Destroying;
        delete this;
    }
    return ULONG(left);
}

void ControlObject::InitNew()
{
    m_control->InitProperties();
    m_dirty = false;
}

void ControlObject::Load(PropertyBag& bag)
{
    CapturingPropertyBag capture(bag);
    {
        WindowlessSurface surface(nullptr);
        OleControlSite site(FromWide(m_class.DefaultInstanceName()), surface, nullptr, nullptr);
        auto scratch = m_class.create(surface, site, nullptr);
        scratch->ReadProperties(capture);
    }
    m_control->ReadProperties(capture.Captured());
    m_dirty = false;
}

void ControlObject::Save(PropertyBag& bag)
{
    m_control->WriteProperties(bag);
}

void ControlObject::Raise(DISPID id, std::span<VARIANT> arguments)
{
    try {
        ComPtr<IUnknown> keepAlive(this);
        std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
        DISPPARAMS params = { reversed.data(), nullptr, UINT(reversed.size()), 0 };
        for (const ComPtr<IUnknown>& sink : m_events.Sinks()) {
            // Advise took the sink as the event dispinterface or IDispatch: both are IDispatch.
            auto* dispatch = static_cast<IDispatch*>(sink.Get());
            dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr);
        }
    } catch (...) {
        // An event is a notification: whatever failed, the control carries on.
    }
}

void ControlObject::OnPropertyChanged(StringView key)
{
    m_dirty = true;
    try {
        // A fill changes a property per cell: without sinks there is nobody to look the id up for.
        const std::vector<ComPtr<IUnknown>> sinks = m_notifications.Sinks();
        if (sinks.empty())
            return;
        String name(key);
        const DispatchMember* member = FindMember(m_class.members, reinterpret_cast<const wchar_t*>(name.c_str()));
        DISPID id = member ? member->id : DISPID_UNKNOWN;
        ComPtr<IUnknown> keepAlive(this);
        for (const ComPtr<IUnknown>& sink : sinks)
            static_cast<IPropertyNotifySink*>(sink.Get())->OnChanged(id);
    } catch (...) {
        // Designer notifications are advisory.
    }
}

} // namespace tolva::win32
