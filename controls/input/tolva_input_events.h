#pragma once
#include "core/mouse_events.h"
#include <cstdint>

namespace tolva {

// The events of TolvaInput: Change, Click, DblClick, KeyDown, KeyPress, KeyUp, MouseDown,
// MouseMove, MouseUp, dispatch ids 1 to 9. Arguments are references: a handler may change them,
// and what it leaves is what the text box goes on to do.
class TolvaInputEvents : public MouseEvents {
public:
    virtual void Change() { }
    virtual void KeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void KeyPress(int16_t& /*keyAscii*/) { }
    virtual void KeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
};

} // namespace tolva
