#include "core/surface_fill.h"
#include "core/long_arithmetic.h"
#include <algorithm>

namespace tolva {

namespace {

int32_t ClientPixels(float twips, int32_t twipsPerPixel)
{
    return RoundToLong(twips / double(std::max(1, twipsPerPixel)));
}

// Fills [left, right) x [top, bottom) in pixels, clipped to the client area, so that the canvas
// never outgrows the window.
void FillPixels(Surface& surface, int64_t left, int64_t top, int64_t right, int64_t bottom, OleColor color)
{
    left = std::max<int64_t>(left, 0);
    top = std::max<int64_t>(top, 0);
    right = std::min<int64_t>(right, ClientPixels(surface.ScaleWidth(), surface.TwipsPerPixelX()));
    bottom = std::min<int64_t>(bottom, ClientPixels(surface.ScaleHeight(), surface.TwipsPerPixelY()));
    if (right <= left || bottom <= top)
        return;
    const auto width = int32_t(right - left);
    const auto height = int32_t(bottom - top);
    const std::unique_ptr<Canvas> box = surface.CreateCanvas(width, height);
    box->FillRect(0, 0, width, height, TranslateColor(*box, color));
    surface.Present(*box, int32_t(left), int32_t(top), width, height);
}

} // namespace

void FillSurfaceBox(Surface& surface, float x1, float y1, float x2, float y2, OleColor color)
{
    const int32_t perPixelX = surface.TwipsPerPixelX();
    const int32_t perPixelY = surface.TwipsPerPixelY();
    FillPixels(surface, ClientPixels(std::min(x1, x2), perPixelX), ClientPixels(std::min(y1, y2), perPixelY),
        int64_t(ClientPixels(std::max(x1, x2), perPixelX)) + 1, int64_t(ClientPixels(std::max(y1, y2), perPixelY)) + 1,
        color);
}

void PaintBackground(Surface& surface)
{
    FillPixels(surface, 0, 0, INT32_MAX, INT32_MAX, surface.BackColor());
}

} // namespace tolva
