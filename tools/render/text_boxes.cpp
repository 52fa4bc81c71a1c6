#include "tools/render/text_boxes.h"
#include <algorithm>

namespace tolva::render {

namespace {

// The differing pixels, each grown by reach across and half of it up and down: the pixels of one
// word or line overlap.
std::vector<bool> Grown(const std::vector<bool>& differs, int32_t width, int32_t height, int32_t reach)
{
    std::vector<bool> grown(differs.size());
    for (int32_t y = 0; y < height; ++y)
        for (int32_t x = 0; x < width; ++x) {
            if (!differs[size_t(y) * size_t(width) + size_t(x)])
                continue;
            for (int32_t gy = std::max(0, y - reach / 2); gy <= std::min(height - 1, y + reach / 2); ++gy)
                for (int32_t gx = std::max(0, x - reach); gx <= std::min(width - 1, x + reach); ++gx)
                    grown[size_t(gy) * size_t(width) + size_t(gx)] = true;
        }
    return grown;
}

} // namespace

std::vector<PixelBox> TextBoxes(const headless::RasterCanvas& withText, const headless::RasterCanvas& hidden,
    const headless::RasterCanvas& hiddenAndWider, int32_t reach, int32_t margin)
{
    const int32_t width = withText.Width(), height = withText.Height();
    std::vector<bool> differs(size_t(width) * size_t(height));
    for (int32_t y = 0; y < height; ++y)
        for (int32_t x = 0; x < width; ++x)
            differs[size_t(y) * size_t(width) + size_t(x)]
                = withText.Pixel(x, y) != hidden.Pixel(x, y) || hidden.Pixel(x, y) != hiddenAndWider.Pixel(x, y);
    std::vector<bool> marked = Grown(differs, width, height, reach);
    std::vector<PixelBox> boxes;
    std::vector<std::pair<int32_t, int32_t>> pending;
    for (int32_t y = 0; y < height; ++y)
        for (int32_t x = 0; x < width; ++x) {
            if (!marked[size_t(y) * size_t(width) + size_t(x)])
                continue;
            // One connected group of marked pixels: the box of the differing pixels in it.
            PixelBox box { width, height, 0, 0 };
            marked[size_t(y) * size_t(width) + size_t(x)] = false;
            pending.assign(1, { x, y });
            while (!pending.empty()) {
                const auto [px, py] = pending.back();
                pending.pop_back();
                if (differs[size_t(py) * size_t(width) + size_t(px)])
                    box = { std::min(box.left, px), std::min(box.top, py), std::max(box.right, px + 1),
                        std::max(box.bottom, py + 1) };
                for (const auto& [dx, dy] : { std::pair { 1, 0 }, { -1, 0 }, { 0, 1 }, { 0, -1 } }) {
                    const int32_t nx = px + dx, ny = py + dy;
                    if (nx < 0 || ny < 0 || nx >= width || ny >= height
                        || !marked[size_t(ny) * size_t(width) + size_t(nx)])
                        continue;
                    marked[size_t(ny) * size_t(width) + size_t(nx)] = false;
                    pending.push_back({ nx, ny });
                }
            }
            boxes.push_back({ std::max(0, box.left - margin), std::max(0, box.top - margin),
                std::min(width, box.right + margin), std::min(height, box.bottom + margin) });
        }
    return boxes;
}

} // namespace tolva::render
