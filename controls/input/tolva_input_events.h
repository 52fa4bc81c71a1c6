#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaInput: Change, Click, DblClick, KeyDown, KeyPress, KeyUp, MouseDown,
// MouseMove, MouseUp, dispatch ids 1 to 9. Arguments are references: a handler may change them,
// and what it leaves is what the text box goes on to do.
class TolvaInputEvents : public KeyAndMouseEvents {
public:
    virtual void Change() { }
};

} // namespace tolva
