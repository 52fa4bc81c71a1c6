#include "platform/headless/raster_canvas.h"
#include "platform/headless/font_engine.h"
#include <algorithm>
#include <array>
#include <stdexcept>

namespace tolva::headless {

namespace {

int32_t ClampSide(int32_t side)
{
    return std::clamp(side, 0, RasterCanvas::MaxSide);
}

// UTF-16 to code points; a lone surrogate stands for itself.
std::u32string CodePoints(StringView text)
{
    std::u32string points;
    for (size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF)
            c = 0x10000 + ((c - 0xD800) << 10) + (char32_t(text[++i]) - 0xDC00);
        points += c;
    }
    return points;
}

// Octants of a line numbered clockwise from the positive x axis (y grows downwards), as GDI
// classifies them to choose how ties between two pixels are broken.
int Octant(int64_t dx, int64_t dy)
{
    if (dy > 0) {
        if (dx > 0)
            return dx > dy ? 1 : 2;
        return -dx > dy ? 4 : 3;
    }
    if (dx < 0)
        return -dx > -dy ? 5 : 6;
    return dx > -dy ? 8 : 7;
}

} // namespace

RasterCanvas::RasterCanvas(int32_t width, int32_t height)
    : m_width(ClampSide(width))
    , m_height(ClampSide(height))
    , m_pixels(size_t(m_width) * size_t(m_height), 0)
    , m_visible { 0, 0, m_width, m_height }
    , m_fonts(&FontEngine::Shared())
{ }

void RasterCanvas::OnDrawingAreaChanged()
{
    m_visible = Clip().Intersect({ 0, 0, m_width, m_height });
}

// x and y in image pixels.
void RasterCanvas::Plot(int64_t x, int64_t y, ColorRef color)
{
    if (x >= m_visible.left && y >= m_visible.top && x < m_visible.right && y < m_visible.bottom)
        m_pixels[size_t(y) * size_t(m_width) + size_t(x)] = color;
}

void RasterCanvas::FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color)
{
    const PixelPoint origin = Origin();
    left = int32_t(std::max<int64_t>(int64_t(left) + origin.x, m_visible.left));
    top = int32_t(std::max<int64_t>(int64_t(top) + origin.y, m_visible.top));
    right = int32_t(std::min<int64_t>(int64_t(right) + origin.x, m_visible.right));
    bottom = int32_t(std::min<int64_t>(int64_t(bottom) + origin.y, m_visible.bottom));
    if (right <= left || bottom <= top)
        return;
    for (int32_t y = top; y < bottom; ++y)
        std::fill_n(m_pixels.begin() + ptrdiff_t(size_t(y) * size_t(m_width) + size_t(left)), right - left, color);
}

void RasterCanvas::Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color)
{
    // Bresenham's line as GDI draws it, each pixel computed from its distance along the major
    // axis, so that only the part over the image is walked. Octants 3, 5, 6 and 8 round ties
    // the other way, which makes a line and its reverse differ in the same places as on GDI.
    const int64_t dx = int64_t(x2) - x1, dy = int64_t(y2) - y1;
    if (dx == 0 && dy == 0)
        return;
    const int64_t startX = int64_t(x1) + Origin().x, startY = int64_t(y1) + Origin().y;
    const int octant = Octant(dx, dy);
    const bool xMajor = octant == 1 || octant == 4 || octant == 5 || octant == 8;
    const int64_t bias = (octant == 3 || octant == 5 || octant == 6 || octant == 8) ? 1 : 0;
    const int64_t xStep = dx >= 0 ? 1 : -1;
    const int64_t yStep = dy >= 0 ? 1 : -1;
    const int64_t major = xMajor ? std::abs(dx) : std::abs(dy);
    const int64_t minor = xMajor ? std::abs(dy) : std::abs(dx);
    const int64_t majorStart = xMajor ? startX : startY;
    const int64_t majorStep = xMajor ? xStep : yStep;
    const int64_t visibleFrom = xMajor ? m_visible.left : m_visible.top;
    const int64_t visibleTo = (xMajor ? m_visible.right : m_visible.bottom) - 1;

    // The steps m (0 <= m < major: the end point is left out) whose major coordinate is visible.
    int64_t first = 0, last = major - 1;
    if (majorStep > 0) {
        first = std::max(first, visibleFrom - majorStart);
        last = std::min(last, visibleTo - majorStart);
    } else {
        first = std::max(first, majorStart - visibleTo);
        last = std::min(last, majorStart - visibleFrom);
    }
    for (int64_t m = first; m <= last; ++m) {
        const auto n = int64_t((__int128(2) * m * minor + bias + major - 1) / (__int128(2) * major));
        if (xMajor)
            Plot(startX + m * xStep, startY + n * yStep, color);
        else
            Plot(startX + n * xStep, startY + m * yStep, color);
    }
}

void RasterCanvas::DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color)
{
    if (text.empty() || m_fonts->Probe().hidden || !m_fonts->Select(font))
        return;
    const FontEngine::Metrics metrics = m_fonts->Current();
    const int64_t left = int64_t(x) + Origin().x;
    const int64_t baseline = int64_t(y) + Origin().y + metrics.ascent;
    int64_t pen = left;
    FontEngine::Glyph glyph;
    for (char32_t character : CodePoints(text)) {
        if (m_fonts->Render(character, glyph)) {
            for (int32_t row = 0; row < glyph.rows; ++row) {
                const unsigned char* bits = glyph.bits + ptrdiff_t(row) * glyph.pitch;
                for (int32_t column = 0; column < glyph.width; ++column) {
                    if (bits[column >> 3] & (0x80 >> (column & 7)))
                        Plot(pen + glyph.left + column, baseline - glyph.top + row, color);
                }
            }
        }
        pen += glyph.advance;
    }
    // Underline and strike-out as GDI draws them: bars of the font's thickness centred on the
    // font's positions, as long as the text's advance.
    const auto bar = [&](int32_t position, int32_t thickness) {
        const int64_t top = baseline - position - thickness / 2;
        for (int64_t row = top; row < top + thickness; ++row) {
            for (int64_t column = left; column < pen; ++column)
                Plot(column, row, color);
        }
    };
    if (font.underline)
        bar(metrics.underlinePosition, metrics.underlineThickness);
    if (font.strikeOut)
        bar(metrics.strikeoutPosition, metrics.strikeoutThickness);
}

TextExtent RasterCanvas::MeasureText(StringView text, const CanvasFont& font)
{
    if (!m_fonts->Select(font))
        return {};
    TextExtent extent;
    extent.height = m_fonts->Current().ascent + m_fonts->Current().descent;
    for (char32_t character : CodePoints(text))
        extent.width += m_fonts->Advance(character) + m_fonts->Probe().widening;
    return extent;
}

ColorRef RasterCanvas::SystemColor(int index) const
{
    constexpr auto rgb = [](uint32_t r, uint32_t g, uint32_t b) { return ColorRef(r | (g << 8) | (b << 16)); };
    static constexpr std::array<ColorRef, 31> colors {
        rgb(255, 255, 255), // scroll bar
        rgb(37, 111, 149), // desktop
        rgb(50, 150, 250), // active caption
        rgb(128, 128, 128), // inactive caption
        rgb(255, 255, 255), // menu
        rgb(255, 255, 255), // window
        rgb(158, 158, 158), // window frame
        rgb(0, 0, 0), // menu text
        rgb(0, 0, 0), // window text
        rgb(0, 0, 0), // caption text
        rgb(255, 255, 255), // active border
        rgb(255, 255, 255), // inactive border
        rgb(128, 128, 128), // application workspace
        rgb(48, 150, 250), // highlight
        rgb(255, 255, 255), // highlight text
        rgb(245, 245, 245), // button face
        rgb(166, 166, 166), // button shadow
        rgb(166, 166, 166), // grey text
        rgb(0, 0, 0), // button text
        rgb(200, 200, 200), // inactive caption text
        rgb(255, 255, 255), // button highlight
        rgb(106, 106, 106), // 3D dark shadow
        rgb(227, 227, 227), // 3D light
        rgb(0, 0, 0), // tooltip text
        rgb(255, 255, 255), // tooltip background
        rgb(255, 255, 255), // alternate button face
        rgb(224, 224, 224), // hot-tracked item
        rgb(50, 150, 250), // active caption gradient
        rgb(128, 128, 128), // inactive caption gradient
        rgb(48, 150, 250), // menu highlight
        rgb(255, 255, 255), // menu bar
    };
    return index >= 0 && size_t(index) < colors.size() ? colors[size_t(index)] : 0;
}

ColorRef RasterCanvas::Pixel(int32_t x, int32_t y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        throw std::out_of_range("pixel outside the image");
    return m_pixels[size_t(y) * size_t(m_width) + size_t(x)];
}

void RasterCanvas::CopyFrom(const RasterCanvas& source, int32_t x, int32_t y, int32_t width, int32_t height)
{
    // The source's columns and rows that land inside the visible part of this image.
    const int64_t fromColumn = std::max<int64_t>(0, int64_t(m_visible.left) - x);
    const int64_t toColumn = std::min<int64_t>({ int64_t(width), source.m_width, int64_t(m_visible.right) - x });
    const int64_t fromRow = std::max<int64_t>(0, int64_t(m_visible.top) - y);
    const int64_t toRow = std::min<int64_t>({ int64_t(height), source.m_height, int64_t(m_visible.bottom) - y });
    for (int64_t row = fromRow; row < toRow; ++row) {
        const auto sourceRow = source.m_pixels.begin() + ptrdiff_t(row * source.m_width);
        std::copy(sourceRow + ptrdiff_t(fromColumn), sourceRow + ptrdiff_t(toColumn),
            m_pixels.begin() + ptrdiff_t((y + row) * m_width + x + fromColumn));
    }
}

} // namespace tolva::headless
