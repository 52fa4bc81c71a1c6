#include "core/line_pen.h"

namespace tolva {

LinePen::LinePen(Canvas& canvas, ColorRef color)
    : m_canvas(canvas)
    , m_color(color)
{ }

void LinePen::MoveTo(int32_t x, int32_t y)
{
    m_position = { x, y };
}

void LinePen::LineTo(int32_t x, int32_t y)
{
    m_canvas.Line(m_position.x, m_position.y, x, y, m_color);
    m_position = { x, y };
}

} // namespace tolva
