#pragma once
#include "core/surface.h"

namespace tolva {

// The transient look of a clickable control: hot while the pointer is over it, pushed while the
// left button that went down on it is held.
struct MouseState {
    bool hot = false;
    bool pushed = false;
};

// The hover test of every mouse move: inside (right and bottom edges outside) takes the capture
// again and sets hot; outside releases the capture and clears hot. The caller repaints.
void UpdateHover(Surface& surface, MouseState& state, float x, float y);
// The same for a control that decides itself whether the pointer is over its clickable part.
void SetHover(Surface& surface, MouseState& state, bool inside);

} // namespace tolva
