#pragma once
#include "platform/headless/headless_surface.h"
#include "platform/headless/raster_canvas.h"

namespace tolva::headless {

// The window as a form shows it, outer size in pixels: its border (a one-pixel black frame when
// flat, the sunken client edge in 3D), its client area, and over it the windows of its visible
// children with theirs.
RasterCanvas WindowPicture(const HeadlessSurface& window);

} // namespace tolva::headless
