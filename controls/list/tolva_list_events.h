#pragma once
#include <cstdint>

namespace tolva {

// The events of TolvaList, in their dispatch order 1 to 9. Arguments are references: the
// handler may change them, as the host's event sink may.
class TolvaListEvents {
public:
    virtual ~TolvaListEvents() = default;

    virtual void Click() { }
    virtual void DblClick() { }
    virtual void KeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void KeyPress(int16_t& /*keyAscii*/) { }
    virtual void KeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    // ListIndex took another row.
    virtual void SelectionChanged() { }
};

} // namespace tolva
