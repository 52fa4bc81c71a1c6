#pragma once
#include <cstdint>

namespace tolva {

// The events of TolvaCommand, in their dispatch order 1 to 8. Arguments are references: the
// handler may change them, as the host's event sink may.
class TolvaCommandEvents {
public:
    virtual ~TolvaCommandEvents() = default;

    virtual void Click() {}
    virtual void DblClick() {}
    virtual void KeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) {}
    virtual void KeyPress(int16_t& /*keyAscii*/) {}
    virtual void KeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) {}
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) {}
};

} // namespace tolva
