#pragma once
#include "core/line_pen.h"
#include <cstdint>

namespace tolva {

// Draws the label's glyph (a tkArrowIcon) for the anchor (x, y) of its tkArrowPosition: the
// anchor is adjusted for the icon and position, then the triangle, and for the pointers the
// shaft, is drawn in one-pixel lines with the pen. Values outside the enumerations draw nothing.
void DrawArrowGlyph(LinePen& pen, int32_t icon, int32_t position, int32_t x, int32_t y);

} // namespace tolva
