#pragma once
#include "platform/headless/raster_canvas.h"
#include <map>
#include <string>
#include <vector>

namespace tolva {

// An image as runs of named colours, one line per stretch of identical pixel rows:
// "16-31: L1 h39 g1 h59" reads: rows 16 to 31 hold, from the left, one pixel of L, 39 of h, one
// of g and 59 of h. A colour the legend does not name is '?'.
inline std::vector<std::string> Runs(const headless::RasterCanvas& image, const std::map<ColorRef, char>& legend)
{
    const auto row = [&](int32_t y) {
        std::string runs;
        char current = 0;
        int count = 0;
        const auto flush = [&] {
            if (count > 0)
                runs += (runs.empty() ? "" : " ") + std::string(1, current) + std::to_string(count);
        };
        for (int32_t x = 0; x < image.Width(); ++x) {
            const auto named = legend.find(image.Pixel(x, y));
            const char name = named == legend.end() ? '?' : named->second;
            if (name != current) {
                flush();
                current = name;
                count = 0;
            }
            ++count;
        }
        flush();
        return runs;
    };
    std::vector<std::string> lines;
    int32_t first = 0;
    std::string previous;
    for (int32_t y = 0; y <= image.Height(); ++y) {
        const std::string current = y < image.Height() ? row(y) : std::string();
        if (y > 0 && (current != previous || y == image.Height())) {
            const std::string rows = first == y - 1 ? std::to_string(first) : std::to_string(first) + "-" + std::to_string(y - 1);
            lines.push_back(rows + ": " + previous);
            first = y;
        }
        previous = current;
    }
    return lines;
}

// The smallest rectangle holding every pixel of a colour within [left, right) x [top, bottom).
struct Ink {
    int32_t left = -1;
    int32_t top = -1;
    int32_t right = -1;
    int32_t bottom = -1;
};

inline Ink InkOf(const headless::RasterCanvas& image, ColorRef color, int32_t left, int32_t right, int32_t top,
    int32_t bottom)
{
    Ink ink;
    for (int32_t y = top; y < bottom; ++y) {
        for (int32_t x = left; x < right; ++x) {
            if (image.Pixel(x, y) != color)
                continue;
            if (ink.left < 0 || x < ink.left)
                ink.left = x;
            if (ink.top < 0)
                ink.top = y;
            ink.right = std::max(ink.right, x + 1);
            ink.bottom = y + 1;
        }
    }
    return ink;
}

} // namespace tolva
