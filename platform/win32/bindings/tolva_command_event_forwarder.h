#pragma once
#include "controls/command/tolva_command_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaCommand's events as the dispinterface __TolvaCommand raises them, the arguments by
// reference to the control's own variables.
using TolvaCommandEventForwarder = KeyAndMouseEventForwarder<TolvaCommandEvents>;

} // namespace tolva::win32
