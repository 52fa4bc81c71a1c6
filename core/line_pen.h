#pragma once
#include "core/canvas.h"
#include "core/rect.h"
#include <cstdint>

namespace tolva {

// One-pixel lines drawn the way a device context draws them: from a current position, which each
// line moves to its end point. The end point itself is not drawn.
class LinePen {
public:
    LinePen(Canvas& canvas, ColorRef color);

    void MoveTo(int32_t x, int32_t y);
    void LineTo(int32_t x, int32_t y);
    PixelPoint CurrentPosition() const { return m_position; }

private:
    Canvas& m_canvas;
    ColorRef m_color;
    PixelPoint m_position;
};

} // namespace tolva
