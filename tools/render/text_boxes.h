#pragma once
#include "platform/headless/raster_canvas.h"
#include <vector>

namespace tolva::render {

struct PixelBox {
    int32_t left = 0; // inclusive
    int32_t top = 0;
    int32_t right = 0; // exclusive
    int32_t bottom = 0;
    bool operator==(const PixelBox&) const = default;
};

// Where a picture holds its text and what the text's size places: the pixels in which it differs
// from the same scene drawn with its text hidden, and those in which that one differs from the
// scene drawn with its text hidden and measured wider. They are grouped into one box per word or
// line (pixels up to `reach` apart belong together), grown by `margin` on every side within the
// picture. Another font engine draws the same text, a little wider or narrower and a pixel or two
// higher or lower (a text box's text), inside them.
std::vector<PixelBox> TextBoxes(const headless::RasterCanvas& withText, const headless::RasterCanvas& hidden,
    const headless::RasterCanvas& hiddenAndWider, int32_t reach = 4, int32_t margin = 3);

} // namespace tolva::render
