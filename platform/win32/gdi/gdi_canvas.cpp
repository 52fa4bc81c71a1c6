#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/gdi/window_dc.h"
#include <algorithm>

namespace tolva::win32 {

namespace {

int32_t ClampSide(int32_t side)
{
    return std::clamp(side, 0, GdiCanvas::MaxSide);
}

const wchar_t* Wide(const String& text)
{
    return reinterpret_cast<const wchar_t*>(text.c_str());
}

const wchar_t* Wide(StringView text)
{
    return reinterpret_cast<const wchar_t*>(text.data());
}

int Count(StringView text)
{
    return int(std::min<size_t>(text.size(), INT_MAX));
}

// A bitmap of at least one pixel (an empty one is not a valid selection target), in the format
// of the given device context or of the screen.
HBITMAP CreateImage(HDC compatibleWith, int32_t width, int32_t height)
{
    if (!compatibleWith) {
        WindowDc screen(nullptr);
        return CreateCompatibleBitmap(screen.Get(), std::max(width, 1), std::max(height, 1));
    }
    return CreateCompatibleBitmap(compatibleWith, std::max(width, 1), std::max(height, 1));
}

} // namespace

GdiObject<HFONT> CreateCanvasFont(const CanvasFont& font)
{
    return GdiObject<HFONT>(CreateFontW(font.height, 0, 0, 0, font.weight, font.italic, font.underline, font.strikeOut,
        font.charSet, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, Wide(font.face)));
}

GdiCanvas::GdiCanvas(HDC compatibleWith, int32_t width, int32_t height)
    : m_width(ClampSide(width))
    , m_height(ClampSide(height))
    , m_dc(compatibleWith)
    , m_bitmap(CreateImage(compatibleWith, m_width, m_height))
    , m_bitmapSelection(m_dc.Get(), m_bitmap.Get())
{ }

void GdiCanvas::FillRect(int32_t left, int32_t top, int32_t right, int32_t bottom, ColorRef color)
{
    GdiObject<HBRUSH> brush(CreateSolidBrush(color));
    const RECT rect { left, top, right, bottom };
    ::FillRect(m_dc.Get(), &rect, brush.Get());
}

void GdiCanvas::Line(int32_t x1, int32_t y1, int32_t x2, int32_t y2, ColorRef color)
{
    GdiObject<HPEN> pen(CreatePen(PS_SOLID, 1, color));
    Selection selected(m_dc.Get(), pen.Get());
    MoveToEx(m_dc.Get(), x1, y1, nullptr);
    LineTo(m_dc.Get(), x2, y2);
}

void GdiCanvas::DrawText(int32_t x, int32_t y, StringView text, const CanvasFont& font, ColorRef color)
{
    if (text.empty())
        return;
    GdiObject<HFONT> gdiFont = CreateCanvasFont(font);
    Selection selected(m_dc.Get(), gdiFont.Get());
    SetBkMode(m_dc.Get(), TRANSPARENT);
    SetTextColor(m_dc.Get(), color);
    ExtTextOutW(m_dc.Get(), x, y, 0, nullptr, Wide(text), UINT(Count(text)), nullptr);
}

TextExtent GdiCanvas::MeasureText(StringView text, const CanvasFont& font)
{
    GdiObject<HFONT> gdiFont = CreateCanvasFont(font);
    Selection selected(m_dc.Get(), gdiFont.Get());
    SIZE size {};
    if (text.empty()) {
        TEXTMETRICW metrics {};
        GetTextMetricsW(m_dc.Get(), &metrics);
        return { 0, metrics.tmHeight };
    }
    GetTextExtentPoint32W(m_dc.Get(), Wide(text), Count(text), &size);
    return { size.cx, size.cy };
}

ColorRef GdiCanvas::SystemColor(int index) const
{
    return ColorRef(GetSysColor(index));
}

void GdiCanvas::CopyTo(
    HDC target, int32_t x, int32_t y, int32_t width, int32_t height, int32_t sourceX, int32_t sourceY) const
{
    BitBlt(target, x, y, width, height, m_dc.Get(), sourceX, sourceY, SRCCOPY);
}

void GdiCanvas::StretchTo(HDC target, const RECT& bounds) const
{
    const int previous = SetStretchBltMode(target, COLORONCOLOR);
    StretchBlt(target, bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, m_dc.Get(), 0,
        0, m_width, m_height, SRCCOPY);
    SetStretchBltMode(target, previous);
}

} // namespace tolva::win32
