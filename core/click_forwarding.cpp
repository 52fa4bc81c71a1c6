#include "core/click_forwarding.h"
#include "core/accessibility.h"

namespace tolva::ClickForwarding {

namespace {

constexpr int16_t LeftButton = 1;

// The pushed look is the pressed state a screen reader follows.
void SetPushed(Surface& surface, MouseState& state, bool pushed)
{
    const bool changed = state.pushed != pushed;
    state.pushed = pushed;
    if (changed)
        surface.Announce(AccessibleEvent::StateChange, AccessibleElement::None);
}

} // namespace

void Press(Surface& surface, MouseState& state, ClickTarget& target)
{
    SetPushed(surface, state, true);
    target.Repaint();
}

void MouseDown(Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton)
        Press(surface, state, target);
    target.Events().MouseDown(button, shift, x, y);
}

void MouseMove(
    Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    UpdateHover(surface, state, x, y);
    target.Repaint();
    target.Events().MouseMove(button, shift, x, y);
}

void MouseUp(Surface& surface, MouseState& state, ClickTarget& target, int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton) {
        SetPushed(surface, state, false);
        state.hot = false;
        target.Repaint();
        target.Clicked();
    }
    target.Events().MouseUp(button, shift, x, y);
}

void Click(Surface& surface, MouseState& state, ClickTarget& target)
{
    MouseUp(surface, state, target, LeftButton, 0, 0, 0);
}

} // namespace tolva::ClickForwarding
