#include "tools/render/stage.h"
#include <cmath>

namespace tolva::render {

namespace {

using headless::HeadlessSurface;
using headless::RasterCanvas;

int32_t Pixels(float twips)
{
    return int32_t(std::lround(twips / SurfaceProperties::TwipsPerPixel));
}

// The sunken client edge of a fixed single border: two pixels on each side, shadowed above and
// to the left, lit below and to the right.
void DrawSunkenEdge(RasterCanvas& image, int32_t left, int32_t top, int32_t width, int32_t height)
{
    constexpr ColorRef shadow = 0x808080, darkShadow = 0x404040, light = 0xC8D0D4, highlight = 0xFFFFFF;
    const int32_t right = left + width, bottom = top + height;
    image.FillRect(left, top, right, bottom, highlight);
    image.FillRect(left, top, right - 1, bottom - 1, shadow);
    image.FillRect(left + 1, top + 1, right - 1, bottom - 1, light);
    image.FillRect(left + 1, top + 1, right - 2, bottom - 2, darkShadow);
}

// Draws the window with its outer top-left corner at (left, top), then its children over it.
void Compose(RasterCanvas& image, const HeadlessSurface& window, int32_t left, int32_t top)
{
    const int32_t border = window.BorderStyle() == 1 ? 2 : 0;
    if (border)
        DrawSunkenEdge(image, left, top, Pixels(window.Width()), Pixels(window.Height()));
    const RasterCanvas& client = window.WindowImage();
    image.CopyFrom(client, left + border, top + border, client.Width(), client.Height());
    for (const HeadlessSurface* child : window.Children())
        Compose(image, *child, left + border + Pixels(child->Left()), top + border + Pixels(child->Top()));
}

} // namespace

Stage::Stage(float width, float height)
{
    m_site.extenderName = u"TolvaControl1";
    m_site.extenderWidth = width;
    m_site.extenderHeight = height;
    m_site.parent = &m_form;
    m_surface.Resize(width, height);
}

RasterCanvas Stage::Image() const
{
    RasterCanvas image(Pixels(m_surface.Width()), Pixels(m_surface.Height()));
    Compose(image, m_surface, 0, 0);
    return image;
}

} // namespace tolva::render
