#pragma once
#include <cstdint>

namespace tolva {

// The events of TolvaScroll, in their dispatch order 1 to 7. Only Change and Scroll are ever
// raised; the mouse events are declared for the container. Arguments are references.
class TolvaScrollEvents {
public:
    virtual ~TolvaScrollEvents() = default;

    virtual void Click() { }
    virtual void DblClick() { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    // Every accepted Value assignment, also one that keeps the value, and every auto-repeat step.
    virtual void Change() { }
    // Each move of a dragged slider that changes Value.
    virtual void Scroll() { }
};

} // namespace tolva
