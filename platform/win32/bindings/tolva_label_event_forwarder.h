#pragma once
#include "controls/label/tolva_label_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaLabel's events as the dispinterface __TolvaLabel raises them: Click 1, DblClick 2,
// MouseDown 3, MouseMove 4, MouseUp 5.
using TolvaLabelEventForwarder = MouseEventForwarder<TolvaLabelEvents, 3>;

} // namespace tolva::win32
