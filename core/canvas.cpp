#include "core/canvas.h"
#include <algorithm>

namespace tolva {

namespace {

int32_t Bounded(int64_t value)
{
    return int32_t(std::clamp<int64_t>(value, Canvas::Unclipped.left, Canvas::Unclipped.right));
}

// The rectangle moved by the origin, its sides kept inside the range drawing coordinates use.
Rect Shifted(const Rect& rect, PixelPoint origin)
{
    return { Bounded(int64_t(rect.left) + origin.x), Bounded(int64_t(rect.top) + origin.y),
        Bounded(int64_t(rect.right) + origin.x), Bounded(int64_t(rect.bottom) + origin.y) };
}

} // namespace

void Canvas::Frame(const Rect& rect, ColorRef color)
{
    if (rect.Empty())
        return;
    FillRect(rect.left, rect.top, rect.right, rect.top + 1, color);
    FillRect(rect.left, rect.bottom - 1, rect.right, rect.bottom, color);
    FillRect(rect.left, rect.top, rect.left + 1, rect.bottom, color);
    FillRect(rect.right - 1, rect.top, rect.right, rect.bottom, color);
}

void Canvas::DrawCharacters(
    int32_t x, int32_t y, StringView text, std::span<const int32_t> steps, const CanvasFont& font, ColorRef color)
{
    for (size_t i = 0; i < text.size() && i < steps.size(); ++i) {
        DrawText(x, y, text.substr(i, 1), font, color);
        x += steps[i];
    }
}

void Canvas::SetOrigin(PixelPoint origin)
{
    m_origin = { Bounded(origin.x), Bounded(origin.y) };
    OnDrawingAreaChanged();
}

void Canvas::SetClip(const Rect& clip)
{
    m_clip = clip.Intersect(Unclipped);
    OnDrawingAreaChanged();
}

DrawingArea::DrawingArea(Canvas& canvas, const Rect& area, OriginMode mode)
    : m_canvas(canvas)
    , m_origin(canvas.Origin())
    , m_clip(canvas.Clip())
{
    const Rect onImage = Shifted(area, m_origin);
    canvas.SetClip(m_clip.Intersect(onImage));
    if (mode == MoveOrigin)
        canvas.SetOrigin(onImage.TopLeft());
}

DrawingArea::~DrawingArea()
{
    m_canvas.SetClip(m_clip);
    m_canvas.SetOrigin(m_origin);
}

} // namespace tolva
