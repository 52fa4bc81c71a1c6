#include "host/win32/screen_pixels.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/memory_dc.h"
#include "platform/win32/gdi/selection.h"
#include "platform/win32/gdi/window_dc.h"

namespace tolva::host {

namespace {

std::vector<uint32_t> Copy(HDC source, const RECT& area)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return {};
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top-down rows
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    win32::GdiObject<HBITMAP> image(CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!image)
        return {};
    win32::MemoryDc dc(source);
    {
        win32::Selection selected(dc.Get(), image.Get());
        BitBlt(dc.Get(), 0, 0, width, height, source, area.left, area.top, SRCCOPY);
    }
    GdiFlush();
    std::vector<uint32_t> pixels(size_t(width) * size_t(height));
    const auto* quads = static_cast<const uint32_t*>(bits); // 0x00RRGGBB
    for (size_t i = 0; i < pixels.size(); ++i) {
        const uint32_t q = quads[i];
        pixels[i] = ((q & 0xFF) << 16) | (q & 0xFF00) | ((q >> 16) & 0xFF);
    }
    return pixels;
}

} // namespace

std::vector<uint32_t> ReadPixels(HDC source, const RECT& area)
{
    if (source)
        return Copy(source, area);
    win32::WindowDc screen(nullptr);
    return Copy(screen.Get(), area);
}

} // namespace tolva::host
