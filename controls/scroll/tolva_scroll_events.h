#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaScroll, in their dispatch order 1 to 7: the mouse events, then Change and
// Scroll. Only Change and Scroll are ever raised; the mouse events are declared for the container.
class TolvaScrollEvents : public MouseEvents {
public:
    // Every accepted Value assignment, also one that keeps the value, and every auto-repeat step.
    virtual void Change() { }
    // Each move of a dragged slider that changes Value.
    virtual void Scroll() { }
};

} // namespace tolva
