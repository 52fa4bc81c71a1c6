#include "tests/win32/support/command_object.h"

namespace tolva::win32::test {

CommandObject::CommandObject()
    : m_unknown(ControlObject::Create(TolvaCommandClass))
    , m_dispatch(m_unknown.As<IDispatch>(IID_IDispatch))
{ }

SurfaceListener& CommandObject::Input() const
{
    // The control listens to its surface through a private base; the cast reaches it whatever
    // kind of surface the object gave it.
    return (SurfaceListener&)Control();
}

void CommandObject::Release()
{
    m_dispatch.Reset();
    m_unknown.Reset();
}

} // namespace tolva::win32::test
