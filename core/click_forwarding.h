#pragma once
#include "core/mouse_events.h"
#include "core/mouse_state.h"
#include "core/surface.h"
#include <cstdint>

namespace tolva {

// What the shared mouse steps need from a clickable control: its paint routine, its click and
// the listener its mouse events go to.
class ClickTarget {
public:
    virtual void Repaint() = 0;
    // The control's Click event followed by its click action (a pop-up menu, for instance).
    virtual void Clicked() = 0;
    virtual MouseEvents& Events() = 0;

protected:
    ~ClickTarget() = default;
};

// Turns a surface's mouse notifications into the pushed and hot looks, repaints and events.
// Nothing here holds state across a raised event, so handlers may call back into the control.
namespace ClickForwarding {

// Shows the pushed look, a change of the pressed state for screen readers.
void Press(Surface& surface, MouseState& state, ClickTarget& target);

// A left press shows the pushed look (Press); every button is then forwarded as MouseDown.
void MouseDown(Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y);

// The hover test and a repaint on every move, hot or not, then MouseMove.
void MouseMove(
    Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y);

// A left release clears both looks, repaints and clicks wherever the pointer is now (a press
// dragged off the control still clicks); every button is then forwarded as MouseUp.
void MouseUp(Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y);

// A click without the mouse (an access key, a screen reader's default action): a left release
// at the top-left corner.
void Click(Surface& surface, MouseState& state, ClickTarget& target);

} // namespace ClickForwarding

} // namespace tolva
