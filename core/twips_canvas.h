#pragma once
#include "core/canvas.h"
#include "core/font.h"
#include "core/surface.h"
#include <memory>

namespace tolva {

// Picture-box drawing in twips over an off-screen pixel canvas of a surface, which it keeps from
// one paint to the next as a picture box keeps its image: a current position that Print advances,
// lines, boxes and filled boxes, text measures, and a font whose underline can be switched on and
// off between pieces of text. It only maps coordinates: every figure is a Canvas call in pixels.
// One twip is 1/15 pixel (the surface's ratio).
class TwipsCanvas {
public:
    explicit TwipsCanvas(Surface& surface);

    // Resizes the image; its content is undefined until the back colour is set.
    void SetSize(float width, float height);
    float ScaleWidth() const { return m_width; }
    float ScaleHeight() const { return m_height; }

    OleColor ForeColor() const { return m_foreColor; }
    void SetForeColor(OleColor color) { m_foreColor = color; }
    OleColor BackColor() const { return m_backColor; }
    void SetBackColor(OleColor color); // also clears the image to that colour

    const Font& GetFont() const { return m_font; }
    void SetFont(const Font& font) { m_font = font; }
    void SetFontUnderline(bool underline) { m_font.underline = underline; }

    float CurrentX() const { return m_currentX; }
    float CurrentY() const { return m_currentY; }
    void SetCurrentX(float x) { m_currentX = x; }
    void SetCurrentY(float y) { m_currentY = y; }

    // Line (x1, y1)-(x2, y2): the end point is not drawn; the current position moves to it.
    void Line(float x1, float y1, float x2, float y2, OleColor color);
    // Line ... , B: the rectangle outline, both corners included.
    void Box(float x1, float y1, float x2, float y2, OleColor color);
    // Line ... , BF: the rectangle filled, both corners included.
    void FilledBox(float x1, float y1, float x2, float y2, OleColor color);

    // Prints at the current position in the fore colour and advances CurrentX by the text width.
    void Print(StringView text);
    float TextWidth(StringView text);
    float TextHeight(StringView text);

    // Copies the image to the surface with its top-left corner at (x, y), at its own size.
    void CopyToSurface(float x = 0, float y = 0);
    Canvas& Image() { return *m_image; }

private:
    int32_t ToPixelX(float x) const;
    int32_t ToPixelY(float y) const;
    Rect PixelBox(float x1, float y1, float x2, float y2) const;
    CanvasFont PixelFont() const;

    Surface& m_surface;
    std::unique_ptr<Canvas> m_image;
    float m_width = 0;
    float m_height = 0;
    OleColor m_foreColor = 0;
    OleColor m_backColor = SystemColor::ButtonFace;
    Font m_font;
    float m_currentX = 0;
    float m_currentY = 0;
};

// The pixel font a canvas creates for a font object: the point size at 96 dots per inch, as a
// character height.
CanvasFont ToCanvasFont(const Font& font);

// The font's point size bounded to what drawing can take (0 to 2000; 0 for a size that is not
// a number), since sizes come from property bags.
double DrawableSize(const Font& font);

} // namespace tolva
