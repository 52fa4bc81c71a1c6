#pragma once
#include "core/canvas.h"
#include "core/surface.h"
#include <memory>

namespace tolva {

// An off-screen image kept from one paint to the next and made again only when the size asked
// for changes: making a canvas costs more than drawing a small control (under GDI a device
// context, a bitmap and the fonts selected into it). Its pixels are whatever the last paint left.
class PaintBuffer {
public:
    explicit PaintBuffer(Surface& surface)
        : m_surface(surface)
    { }

    Canvas& Sized(int32_t width, int32_t height)
    {
        if (!m_image || m_image->Width() != width || m_image->Height() != height)
            m_image = m_surface.CreateCanvas(width, height);
        return *m_image;
    }

private:
    Surface& m_surface;
    std::unique_ptr<Canvas> m_image;
};

} // namespace tolva
