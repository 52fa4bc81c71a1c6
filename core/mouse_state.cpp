#include "core/mouse_state.h"

namespace tolva {

void UpdateHover(Surface& surface, MouseState& state, float x, float y)
{
    SetHover(surface, state, x >= 0 && x < surface.ScaleWidth() && y >= 0 && y < surface.ScaleHeight());
}

void SetHover(Surface& surface, MouseState& state, bool inside)
{
    if (inside)
        surface.SetCapture();
    else
        surface.ReleaseCapture();
    state.hot = inside;
}

} // namespace tolva
