#include "platform/win32/gdi/gdi_canvas.h"
#include <algorithm>

namespace tolva::win32 {

namespace {

int32_t ClampSide(int32_t side)
{
    return std::clamp(side, 0, GdiCanvas::MaxSide);
}

const wchar_t* Wide(StringView text)
{
    return reinterpret_cast<const wchar_t*>(text.data());
}

int Count(StringView text)
{
    return int(std::min<size_t>(text.size(), INT_MAX));
}

// Below the combining marks no character is shaped, reordered or made of two code units.
bool DrawnAlikeInARun(StringView text)
{
    return std::all_of(text.begin(), text.end(), [](char16_t character) { return character < 0x300; });
}

// A bitmap of at least one pixel (an empty one is not a valid selection target): in the format
// of the given device context, or for the screen a 32-bit DIB section, which Wine makes several
// times faster than a screen-compatible bitmap and which copies to any window.
HBITMAP CreateImage(HDC compatibleWith, HDC memoryDc, int32_t width, int32_t height)
{
    width = std::max(width, 1);
    height = std::max(height, 1);
    if (compatibleWith)
        return CreateCompatibleBitmap(compatibleWith, width, height);
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    return CreateDIBSection(memoryDc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

} // namespace

GdiCanvas::GdiCanvas(HDC compatibleWith, int32_t width, int32_t height)
    : m_width(ClampSide(width))
    , m_height(ClampSide(height))
    , m_dc(compatibleWith)
    , m_bitmap(CreateImage(compatibleWith, m_dc.Get(), m_width, m_height))
    , m_bitmapSelection(m_dc.Get(), m_bitmap.Get())
    , m_textColor(GetTextColor(m_dc.Get()))
{
    SetBkMode(m_dc.Get(), TRANSPARENT);
}

void GdiCanvas::FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color)
{
    const RECT rect { left, top, right, bottom };
    if (HBRUSH brush = m_objects.Brush(color))
        ::FillRect(m_dc.Get(), &rect, brush);
}

void GdiCanvas::Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color)
{
    if (!m_objects.SelectPen(color))
        return;
    MoveToEx(m_dc.Get(), x1, y1, nullptr);
    LineTo(m_dc.Get(), x2, y2);
}

bool GdiCanvas::PrepareText(const CanvasFont& font, ColorRef color)
{
    if (!m_objects.SelectFont(font))
        return false;
    if (color != m_textColor) {
        SetTextColor(m_dc.Get(), color);
        m_textColor = color;
    }
    return true;
}

void GdiCanvas::DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color)
{
    if (!text.empty() && PrepareText(font, color))
        ExtTextOutW(m_dc.Get(), x, y, 0, nullptr, Wide(text), UINT(Count(text)), nullptr);
}

// One call places every character at its step, which draws each glyph where and as it would be
// drawn alone, unless a line runs under or through the text (it would span the whole run) or a
// character may be shaped, reordered or paired with its neighbours.
void GdiCanvas::DrawCharacters(
    int32_t x, int32_t y, StringView text, std::span<const int32_t> steps, const CanvasFont& font, ColorRef color)
{
    if (font.underline || font.strikeOut || steps.size() < text.size() || !DrawnAlikeInARun(text))
        Canvas::DrawCharacters(x, y, text, steps, font, color);
    else if (!text.empty() && PrepareText(font, color))
        ExtTextOutW(m_dc.Get(), x, y, 0, nullptr, Wide(text), UINT(Count(text)), steps.data());
}

TextExtent GdiCanvas::MeasureText(StringView text, const CanvasFont& font)
{
    return m_objects.Measure(font, text);
}

// The origin is the viewport's; the clip is set in the new logical coordinates and bounded by
// the image, so that GDI sees only small numbers.
void GdiCanvas::OnDrawingAreaChanged()
{
    const PixelPoint origin = Origin();
    SetViewportOrgEx(m_dc.Get(), origin.x, origin.y, nullptr);
    SelectClipRgn(m_dc.Get(), nullptr);
    const Rect clip = Clip().Intersect({ 0, 0, m_width, m_height });
    if (clip != Rect { 0, 0, m_width, m_height })
        IntersectClipRect(m_dc.Get(), clip.left - origin.x, clip.top - origin.y, std::max(clip.left, clip.right) - origin.x,
            std::max(clip.top, clip.bottom) - origin.y);
}

ColorRef GdiCanvas::SystemColor(int index) const
{
    return ColorRef(GetSysColor(index));
}

void GdiCanvas::CopyTo(
    HDC target, int32_t x, int32_t y, int32_t width, int32_t height, int32_t sourceX, int32_t sourceY) const
{
    // Source coordinates are logical: the drawing area's origin must not move the image.
    BitBlt(target, x, y, width, height, m_dc.Get(), sourceX - Origin().x, sourceY - Origin().y, SRCCOPY);
}

void GdiCanvas::StretchTo(HDC target, const RECT& bounds) const
{
    const int previous = SetStretchBltMode(target, COLORONCOLOR);
    StretchBlt(target, bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, m_dc.Get(),
        -Origin().x, -Origin().y, m_width, m_height, SRCCOPY);
    SetStretchBltMode(target, previous);
}

} // namespace tolva::win32
