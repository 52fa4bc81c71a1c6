#pragma once
#include "core/canvas.h"
#include "platform/win32/gdi/drawing_objects.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/memory_dc.h"
#include "platform/win32/gdi/selection.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// An off-screen image: a memory device context with a bitmap compatible with a window's device
// context. The pens, brushes and fonts it draws with are made once per description and deleted
// with the canvas (DrawingObjects); the drawing area is the device context's viewport origin and
// clip region.
class GdiCanvas final : public Canvas {
public:
    // Sides are clamped to 0 .. MaxSide pixels; an image the system cannot allocate stays blank.
    static constexpr int32_t MaxSide = 16384;

    // compatibleWith may be null for the screen.
    GdiCanvas(HDC compatibleWith, int32_t width, int32_t height);

    int32_t Width() const override { return m_width; }
    int32_t Height() const override { return m_height; }

    void FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color) override;
    void Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color) override;
    void DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color) override;
    void DrawCharacters(int32_t x, int32_t y, StringView text, std::span<const int32_t> steps, const CanvasFont& font,
        ColorRef color) override;
    TextExtent MeasureText(StringView text, const CanvasFont& font) override;
    ColorRef SystemColor(int index) const override;

    // Copies width x height pixels from the image's (sourceX, sourceY) to (x, y) of a device context.
    void CopyTo(HDC target, int32_t x, int32_t y, int32_t width, int32_t height, int32_t sourceX = 0,
        int32_t sourceY = 0) const;
    // Stretches the whole image over a rectangle of a device context (a container's Draw call).
    void StretchTo(HDC target, const RECT& bounds) const;

    HDC Dc() const { return m_dc.Get(); }

protected:
    void OnDrawingAreaChanged() override;

private:
    // Selects the font and sets the text colour; false when the font cannot be made.
    bool PrepareText(const CanvasFont& font, ColorRef color);

    int32_t m_width;
    int32_t m_height;
    DrawingObjects m_objects { m_dc }; // before the device context: deleted after it
    MemoryDc m_dc;
    GdiObject<HBITMAP> m_bitmap;
    Selection m_bitmapSelection; // after the bitmap: deselects it before it is deleted
    ColorRef m_textColor;
};

} // namespace tolva::win32
