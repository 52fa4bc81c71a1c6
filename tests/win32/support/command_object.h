#pragma once
#include "controls/command/tolva_command.h"
#include "platform/win32/com/control_object.h"

namespace tolva::win32 {
extern const ControlClass TolvaCommandClass;
}

namespace tolva::win32::test {

// A TolvaCommand COM object made in the test's own process, whose input a test delivers as the
// control's window would.
class CommandObject {
public:
    CommandObject();

    IUnknown* Unknown() const { return m_unknown.Get(); }
    IDispatch* Dispatch() const { return m_dispatch.Get(); }
    ControlObject& Object() const { return *static_cast<ControlObject*>(m_unknown.Get()); }
    TolvaCommand& Control() const { return Object().ControlAs<TolvaCommand>(); }
    SurfaceListener& Input() const;

    template <class I> ComPtr<I> As(REFIID iid) const { return m_unknown.As<I>(iid); }

    // Drops the test's references (the object lives on while others hold it).
    void Release();

private:
    ComPtr<IUnknown> m_unknown;
    ComPtr<IDispatch> m_dispatch;
};

} // namespace tolva::win32::test
