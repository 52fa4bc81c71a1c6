#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaCommand, in their dispatch order 1 to 8: Click, DblClick, KeyDown, KeyPress,
// KeyUp, MouseDown, MouseMove, MouseUp. Arguments are references: the handler may change them.
class TolvaCommandEvents : public KeyAndMouseEvents { };

} // namespace tolva
