#include "platform/headless/window_picture.h"
#include <cmath>

namespace tolva::headless {

namespace {

int32_t Pixels(float twips)
{
    return int32_t(std::lround(twips / SurfaceProperties::TwipsPerPixel));
}

// The sunken client edge of a 3D border: two pixels on each side, shadowed above and to the
// left, lit below and to the right, in the system's 3D colours.
void DrawSunkenEdge(RasterCanvas& image, int32_t left, int32_t top, int32_t right, int32_t bottom)
{
    const auto colour = [&image](OleColor system) { return image.SystemColor(SystemColorIndex(system)); };
    const ColorRef shadow = colour(SystemColor::ButtonShadow), darkShadow = colour(SystemColor::DarkShadow3D),
                   light = colour(SystemColor::Light3D), highlight = colour(SystemColor::ButtonHighlight);
    image.FillRect(left, top, right, bottom, highlight);
    image.FillRect(left, top, right - 1, bottom - 1, shadow);
    image.FillRect(left + 1, top + 1, right - 1, bottom - 1, light);
    image.FillRect(left + 1, top + 1, right - 2, bottom - 2, darkShadow);
}

// The frame of a flat border: one black pixel on each side.
void DrawFlatFrame(RasterCanvas& image, int32_t left, int32_t top, int32_t right, int32_t bottom)
{
    constexpr ColorRef black = 0x000000;
    image.FillRect(left, top, right, top + 1, black);
    image.FillRect(left, bottom - 1, right, bottom, black);
    image.FillRect(left, top, left + 1, bottom, black);
    image.FillRect(right - 1, top, right, bottom, black);
}

// Draws the window with its outer top-left corner at (left, top), then its visible children over
// it, the later ones on top.
void Compose(RasterCanvas& image, const HeadlessSurface& window, int32_t left, int32_t top)
{
    const int32_t border = window.BorderPixels();
    const int32_t right = left + Pixels(window.Width()), bottom = top + Pixels(window.Height());
    if (window.BorderStyle() == 1 && window.Appearance() == SurfaceAppearance::Flat)
        DrawFlatFrame(image, left, top, right, bottom);
    else if (window.BorderStyle() == 1)
        DrawSunkenEdge(image, left, top, right, bottom);
    const RasterCanvas& client = window.WindowImage();
    image.CopyFrom(client, left + border, top + border, client.Width(), client.Height());
    for (const HeadlessSurface* child : window.Children())
        if (child->Visible())
            Compose(image, *child, left + border + Pixels(child->Left()), top + border + Pixels(child->Top()));
}

} // namespace

RasterCanvas WindowPicture(const HeadlessSurface& window)
{
    RasterCanvas image(Pixels(window.Width()), Pixels(window.Height()));
    Compose(image, window, 0, 0);
    return image;
}

} // namespace tolva::headless
