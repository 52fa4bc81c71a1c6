#include "tests/win32/support/command_object.h"

namespace tolva::win32::test {

CommandObject::CommandObject()
    : m_unknown(ControlObject::Create(TolvaCommandClass))
    , m_dispatch(m_unknown.As<IDispatch>(IID_IDispatch))
{ }

SurfaceListener& CommandObject::Input() const
{
    return *dynamic_cast<WindowlessSurface&>(Object().ControlSurface()).Listener();
}

void CommandObject::Release()
{
    m_dispatch.Reset();
    m_unknown.Reset();
}

} // namespace tolva::win32::test
