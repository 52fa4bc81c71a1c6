#pragma once
#include "core/ole_color.h"
#include "core/rect.h"
#include "core/string.h"
#include <cstdint>
#include <span>

namespace tolva {

// A font as the drawing backends create it. height follows the GDI convention: positive is the
// cell height in pixels, negative the character (em) height in pixels.
struct CanvasFont {
    String face = u"MS Sans Serif";
    int32_t height = -11;
    int32_t weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    uint8_t charSet = 0;

    bool operator==(const CanvasFont&) const = default;
};

struct TextExtent {
    int32_t width = 0;
    int32_t height = 0;
};

// An off-screen bitmap in pixels. Drawing happens in the coordinates of a drawing area: an origin
// (where (0, 0) lies on the image) and a clip rectangle (the only image pixels drawing may
// change), both in image pixels, so that a cell, a row or a pop-up item is drawn in its own
// coordinates. A new canvas draws at the image's top-left corner, unclipped. The drawing objects
// a backend makes (fonts, pens, brushes) live at most as long as the canvas.
class Canvas {
public:
    virtual ~Canvas() = default;

    virtual int32_t Width() const = 0;
    virtual int32_t Height() const = 0;

    // Fills left <= x < right, top <= y < bottom.
    virtual void FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color) = 0;

    // A one-pixel solid line from (x1, y1) towards (x2, y2); the end point is not drawn.
    virtual void Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color) = 0;

    // Text with a transparent background, its cell's top-left corner at (x, y).
    virtual void DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color) = 0;
    // Each character of text as DrawText draws it alone, the first at x and each next one
    // steps[i] pixels after the one before; nothing is shaped or joined across characters.
    // steps holds one step per character.
    virtual void DrawCharacters(
        int32_t x, int32_t y, StringView text, std::span<const int32_t> steps, const CanvasFont& font, ColorRef color);
    virtual TextExtent MeasureText(StringView text, const CanvasFont& font) = 0;

    // The RGB value of a system colour index (the low byte of a system OLE colour).
    virtual ColorRef SystemColor(int index) const = 0;

    void Fill(const Rect& rect, ColorRef color) { FillRect(rect.left, rect.top, rect.right, rect.bottom, color); }
    // The one-pixel outline just inside the rectangle.
    void Frame(const Rect& rect, ColorRef color);

    // The drawing area, in image pixels.
    PixelPoint Origin() const { return m_origin; }
    Rect Clip() const { return m_clip; }
    void SetOrigin(PixelPoint origin);
    void SetClip(const Rect& clip);

    // A clip that leaves the whole image drawable.
    static constexpr Rect Unclipped { -(1 << 30), -(1 << 30), 1 << 30, 1 << 30 };

protected:
    // Tells a backend that keeps the drawing area in a device of its own to update it.
    virtual void OnDrawingAreaChanged() { }

private:
    PixelPoint m_origin;
    Rect m_clip = Unclipped;
};

// Narrows a canvas's drawing area to a rectangle of its current coordinates for the lifetime of
// this object, then restores the previous one. By default the rectangle's top-left corner becomes
// the origin; KeepOrigin only clips.
class DrawingArea {
public:
    enum OriginMode { MoveOrigin, KeepOrigin };

    DrawingArea(Canvas& canvas, const Rect& area, OriginMode mode = MoveOrigin);
    ~DrawingArea();
    DrawingArea(const DrawingArea&) = delete;
    DrawingArea& operator=(const DrawingArea&) = delete;

private:
    Canvas& m_canvas;
    PixelPoint m_origin;
    Rect m_clip;
};

// Resolves an OLE colour to RGB the way the picture-box primitives do.
inline ColorRef TranslateColor(const Canvas& canvas, OleColor color)
{
    return IsSystemColor(color) ? canvas.SystemColor(SystemColorIndex(color)) : ColorRef(color & 0xFFFFFF);
}

} // namespace tolva
