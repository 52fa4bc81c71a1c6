#include "core/twips_canvas.h"
#include <algorithm>
#include <cmath>

namespace tolva {

TwipsCanvas::TwipsCanvas(Surface& surface)
    : m_surface(surface)
    , m_image(surface.CreateCanvas(1, 1))
{ }

void TwipsCanvas::SetSize(float width, float height)
{
    m_width = width;
    m_height = height;
    const int32_t pixelWidth = std::max(1, ToPixelX(width));
    const int32_t pixelHeight = std::max(1, ToPixelY(height));
    if (pixelWidth != m_image->Width() || pixelHeight != m_image->Height())
        m_image = m_surface.CreateCanvas(pixelWidth, pixelHeight);
}

void TwipsCanvas::SetBackColor(OleColor color)
{
    m_backColor = color;
    m_image->Fill({ 0, 0, m_image->Width(), m_image->Height() }, TranslateColor(*m_image, color));
}

void TwipsCanvas::Line(float x1, float y1, float x2, float y2, OleColor color)
{
    m_image->Line(ToPixelX(x1), ToPixelY(y1), ToPixelX(x2), ToPixelY(y2), TranslateColor(*m_image, color));
    m_currentX = x2;
    m_currentY = y2;
}

void TwipsCanvas::Box(float x1, float y1, float x2, float y2, OleColor color)
{
    m_image->Frame(PixelBox(x1, y1, x2, y2), TranslateColor(*m_image, color));
    m_currentX = x2;
    m_currentY = y2;
}

void TwipsCanvas::FilledBox(float x1, float y1, float x2, float y2, OleColor color)
{
    m_image->Fill(PixelBox(x1, y1, x2, y2), TranslateColor(*m_image, color));
    m_currentX = x2;
    m_currentY = y2;
}

void TwipsCanvas::Print(StringView text)
{
    m_image->DrawText(
        ToPixelX(m_currentX), ToPixelY(m_currentY), text, PixelFont(), TranslateColor(*m_image, m_foreColor));
    m_currentX += TextWidth(text);
}

float TwipsCanvas::TextWidth(StringView text)
{
    return float(m_image->MeasureText(text, PixelFont()).width * m_surface.TwipsPerPixelX());
}

float TwipsCanvas::TextHeight(StringView text)
{
    return float(m_image->MeasureText(text, PixelFont()).height * m_surface.TwipsPerPixelY());
}

void TwipsCanvas::CopyToSurface(float x, float y)
{
    m_surface.Present(*m_image, ToPixelX(x), ToPixelY(y), m_image->Width(), m_image->Height());
}

namespace {

// Twips to the nearest pixel, bounded so that far-off coordinates stay harmless integers.
int32_t ToPixel(float twips, int32_t twipsPerPixel)
{
    const double pixels = std::nearbyint(double(twips) / std::max(1, twipsPerPixel));
    if (!(pixels > -1e9))
        return -1000000000;
    return int32_t(std::min(pixels, 1e9));
}

} // namespace

int32_t TwipsCanvas::ToPixelX(float x) const
{
    return ToPixel(x, m_surface.TwipsPerPixelX());
}

int32_t TwipsCanvas::ToPixelY(float y) const
{
    return ToPixel(y, m_surface.TwipsPerPixelY());
}

// The pixels of a box whose corners are both included, in either order.
Rect TwipsCanvas::PixelBox(float x1, float y1, float x2, float y2) const
{
    const int32_t xa = ToPixelX(x1), xb = ToPixelX(x2), ya = ToPixelY(y1), yb = ToPixelY(y2);
    return { std::min(xa, xb), std::min(ya, yb), std::max(xa, xb) + 1, std::max(ya, yb) + 1 };
}

CanvasFont TwipsCanvas::PixelFont() const
{
    return ToCanvasFont(m_font);
}

double DrawableSize(const Font& font)
{
    return std::isfinite(font.size) ? std::clamp(font.size, 0.0, 2000.0) : 0.0;
}

CanvasFont ToCanvasFont(const Font& font)
{
    // As the font object does: the size is kept in ten-thousandths of a point and scaled with
    // MulDiv(size, 96, 72), which rounds half away from zero.
    const auto tenThousandths = int64_t(std::llround(DrawableSize(font) * 10000));
    CanvasFont canvasFont;
    canvasFont.face = font.name;
    canvasFont.height = -int32_t((tenThousandths * 96 + 360000) / 720000);
    canvasFont.weight = font.weight;
    canvasFont.italic = font.italic;
    canvasFont.underline = font.underline;
    canvasFont.strikeOut = font.strikethrough;
    canvasFont.charSet = uint8_t(font.charset);
    return canvasFont;
}

} // namespace tolva
