#pragma once
#include "core/surface.h"
#include "platform/win32/com/connection_point.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/event_raiser.h"
#include "platform/win32/com/live_font.h"
#include "platform/win32/com/module.h"
#include "platform/win32/com/object_part.h"
#include "platform/win32/com/ole_control_site.h"
#include <memory>
#include <vector>

namespace tolva::win32 {

// The COM object of any core control: identity and reference count, the control with its
// surface and site, the outgoing interfaces, the font object, and the interface parts
// (object_parts.cpp lists them). Whoever calls into the control from outside a COM call (a
// window's message, a timer) holds a reference for the duration: a sink may release the
// object inside an event.
class ControlObject final : public IUnknown, public BindingTarget, private EventRaiser {
public:
    // A new object with one reference; throws on failure.
    static ComPtr<IUnknown> Create(const ControlClass& controlClass);

    ControlObject(const ControlObject&) = delete;
    ControlObject& operator=(const ControlObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    const ControlClass& Class() const { return m_class; }
    HostedControl& Control() { return *m_control; }
    template <class C> C& ControlAs() { return *static_cast<C*>(m_control->Object()); }
    // The binding table's object: the core control.
    void* BoundObject() override { return m_control->Object(); }
    Surface& ControlSurface() { return *m_surface; }
    OleControlSite& Site() { return m_site; }
    ConnectionPoint& Events() { return m_events; }
    ConnectionPoint& PropertyNotifications() { return m_notifications; }
    LiveFont& FontObject() { return m_font; }

    // Another interface part of this object, for parts that work together.
    template <class Part> Part* FindPart()
    {
        for (auto& part : m_parts)
            if (auto* found = dynamic_cast<Part*>(part.get()))
                return found;
        return nullptr;
    }

    bool IsDirty() const { return m_dirty; }
    void SetDirty(bool dirty) { m_dirty = dirty; }

    // Lifecycle. A new object is initialised with the defaults already; a container calls
    // InitNew once it has set the client site, so that the extender's name becomes the caption.
    void InitNew();
    // Reads the control's properties from bag. The values are first read by a scratch copy of
    // the control; if anything is refused there, this throws and the control stays as it was.
    void Load(PropertyBag& bag);
    void Save(PropertyBag& bag);

private:
    explicit ControlObject(const ControlClass& controlClass);
    ~ControlObject();

    void Raise(DISPID id, std::span<VARIANT> arguments) override;
    void OnPropertyChanged(StringView key);

    static constexpr LONG Destroying = LONG(0x40000000);

    ModuleReference m_module;
    LONG m_references = 1;
    const ControlClass& m_class;
    std::unique_ptr<Surface> m_surface;
    OleControlSite m_site;
    ConnectionPoint m_events;
    ConnectionPoint m_notifications;
    LiveFont m_font;
    std::unique_ptr<HostedControl> m_control;
    std::vector<std::unique_ptr<ObjectPart>> m_parts;
    bool m_dirty = false;
};

template <class... Interfaces>
template <class Body>
HRESULT PartOf<Interfaces...>::Entered(REFIID iid, Body&& body) noexcept
{
    ComPtr<IUnknown> keepAlive(&m_object);
    return Guarded(iid, std::forward<Body>(body));
}

template <class... Interfaces> HRESULT PartOf<Interfaces...>::QueryInterface(REFIID iid, void** out)
{
    return m_object.QueryInterface(iid, out);
}

template <class... Interfaces> ULONG PartOf<Interfaces...>::AddRef()
{
    return m_object.AddRef();
}

template <class... Interfaces> ULONG PartOf<Interfaces...>::Release()
{
    return m_object.Release();
}

// The interface parts of a new object, in the order QueryInterface asks them.
std::vector<std::unique_ptr<ObjectPart>> CreateObjectParts(ControlObject& object);

// The surface of a new object. Windowless until a container gives it a window; owner is held
// by the surface's timers while they tick.
std::unique_ptr<Surface> CreateControlSurface(IUnknown& owner);

} // namespace tolva::win32
