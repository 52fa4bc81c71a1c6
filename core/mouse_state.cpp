#include "core/mouse_state.h"

namespace tolva {

void UpdateHover(Surface& surface, MouseState& state, float x, float y)
{
    const bool inside = x >= 0 && x < surface.ScaleWidth() && y >= 0 && y < surface.ScaleHeight();
    if (inside)
        surface.SetCapture();
    else
        surface.ReleaseCapture();
    state.hot = inside;
}

} // namespace tolva
