#pragma once
#include "core/surface.h"
#include "platform/win32/com/control_object.h"

namespace tolva::win32 {
extern const ControlClass TolvaLabelClass;
extern const ControlClass TolvaScrollClass;
extern const ControlClass TolvaTabsClass;
extern const ControlClass TolvaListClass;
}

namespace tolva::win32::test {

// The COM object of one control class made in the test's own process, with the core control
// inside it, whose input a test delivers as the control's window would.
template <class Control> class HostedObject {
public:
    explicit HostedObject(const ControlClass& controlClass)
        : m_unknown(ControlObject::Create(controlClass))
        , m_dispatch(m_unknown.As<IDispatch>(IID_IDispatch))
    { }

    IUnknown* Unknown() const { return m_unknown.Get(); }
    IDispatch* Dispatch() const { return m_dispatch.Get(); }
    ControlObject& Object() const { return *static_cast<ControlObject*>(m_unknown.Get()); }
    Control& Core() const { return Object().template ControlAs<Control>(); }
    // The control listens to its surface through a private base; the cast reaches it whatever
    // kind of surface the object gave it.
    SurfaceListener& Input() const { return (SurfaceListener&)Core(); }

    template <class I> ComPtr<I> As(REFIID iid) const { return m_unknown.As<I>(iid); }

    // Drops the test's references (the object lives on while others hold it).
    void Release()
    {
        m_dispatch.Reset();
        m_unknown.Reset();
    }

private:
    ComPtr<IUnknown> m_unknown;
    ComPtr<IDispatch> m_dispatch;
};

} // namespace tolva::win32::test
