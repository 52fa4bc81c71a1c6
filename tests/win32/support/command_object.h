#pragma once
#include "controls/command/tolva_command.h"
#include "tests/win32/support/hosted_object.h"

namespace tolva::win32 {
extern const ControlClass TolvaCommandClass;
}

namespace tolva::win32::test {

// A TolvaCommand COM object made in the test's own process, whose input a test delivers as the
// control's window would. The button's tests call its core control Control().
class CommandObject final : public HostedObject<TolvaCommand> {
public:
    CommandObject()
        : HostedObject(TolvaCommandClass)
    { }

    TolvaCommand& Control() const { return Core(); }
};

} // namespace tolva::win32::test
