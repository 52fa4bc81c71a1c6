#pragma once
#include "core/canvas.h"
#include <vector>

namespace tolva::headless {

class FontEngine;

// An off-screen image in memory, one 0x00BBGGRR value per pixel, drawn with GDI's pixel rules:
// rectangles exclude their right and bottom edges, lines their end point, text is rendered
// without anti-aliasing. A new image is black. Everything outside the image and the clip is left
// out.
class RasterCanvas final : public Canvas {
public:
    // Larger sides are clamped, so that a size from outside cannot exhaust memory.
    static constexpr int32_t MaxSide = 8192;

    RasterCanvas(int32_t width, int32_t height);

    int32_t Width() const override { return m_width; }
    int32_t Height() const override { return m_height; }

    void FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color) override;
    void Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color) override;
    void DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color) override;
    TextExtent MeasureText(StringView text, const CanvasFont& font) override;
    // The colours of a new Wine prefix (Wine 8's default scheme, as GetSysColor answers there), so
    // that pictures agree with the DLL's under Wine; 0 for an unknown index.
    ColorRef SystemColor(int index) const override;

    // Throws std::out_of_range outside the image.
    ColorRef Pixel(int32_t x, int32_t y) const;

    // Copies width x height pixels from the source's top-left corner to (x, y) of the image,
    // whatever the origin, inside the clip.
    void CopyFrom(const RasterCanvas& source, int32_t x, int32_t y, int32_t width, int32_t height);

protected:
    void OnDrawingAreaChanged() override;

private:
    void Plot(int64_t x, int64_t y, ColorRef color);

    int32_t m_width;
    int32_t m_height;
    std::vector<ColorRef> m_pixels;
    Rect m_visible; // the clip inside the image
    FontEngine* m_fonts;
};

} // namespace tolva::headless
