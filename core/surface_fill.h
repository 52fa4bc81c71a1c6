#pragma once
#include "core/ole_color.h"
#include "core/surface.h"

namespace tolva {

// Fills a rectangle of the surface's client area directly, as the form's filled-box line does on
// a window without a back buffer: twips in the surface's scale, both corners included, the
// colour translated when it is a system colour.
void FillSurfaceBox(Surface& surface, float x1, float y1, float x2, float y2, OleColor color);

// Clears the whole client area to the surface's back colour: what a window without drawing of
// its own shows.
void PaintBackground(Surface& surface);

} // namespace tolva
