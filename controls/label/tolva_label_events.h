#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaLabel, in their dispatch order 1 to 5: Click, DblClick, MouseDown,
// MouseMove, MouseUp.
using TolvaLabelEvents = MouseEvents;

} // namespace tolva
