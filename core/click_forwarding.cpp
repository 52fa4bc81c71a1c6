#include "core/click_forwarding.h"

namespace tolva::ClickForwarding {

namespace {
constexpr int16_t LeftButton = 1;
}

void MouseDown(MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton) {
        state.pushed = true;
        target.Repaint();
    }
    target.Events().MouseDown(button, shift, x, y);
}

void MouseMove(
    Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    UpdateHover(surface, state, x, y);
    target.Repaint();
    target.Events().MouseMove(button, shift, x, y);
}

void MouseUp(MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton) {
        state.pushed = false;
        state.hot = false;
        target.Repaint();
        target.Clicked();
    }
    target.Events().MouseUp(button, shift, x, y);
}

void Click(MouseState& state, ClickTarget& target)
{
    MouseUp(state, target, LeftButton, 0, 0, 0);
}

} // namespace tolva::ClickForwarding
