#pragma once
#include <cstdint>

namespace tolva {

// The events of TolvaInput, in their dispatch order 1 to 9. Arguments are references: a
// handler may change them, and what it leaves is what the text box goes on to do.
class TolvaInputEvents {
public:
    virtual ~TolvaInputEvents() = default;

    virtual void Change() { }
    virtual void Click() { }
    virtual void DblClick() { }
    virtual void KeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void KeyPress(int16_t& /*keyAscii*/) { }
    virtual void KeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
};

} // namespace tolva
