#pragma once
#include <algorithm>
#include <cstdint>

namespace tolva {

struct PixelPoint {
    int32_t x = 0;
    int32_t y = 0;
    bool operator==(const PixelPoint&) const = default;
};

// A rectangle in pixels: left <= x < right, top <= y < bottom, as GDI counts them.
struct Rect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;

    int32_t Width() const { return right - left; }
    int32_t Height() const { return bottom - top; }
    bool Empty() const { return right <= left || bottom <= top; }
    bool Contains(int32_t x, int32_t y) const { return x >= left && x < right && y >= top && y < bottom; }
    PixelPoint TopLeft() const { return { left, top }; }

    Rect Offset(int32_t dx, int32_t dy) const { return { left + dx, top + dy, right + dx, bottom + dy }; }
    // Shrinks each side by the inset (grows it for a negative one).
    Rect Inset(int32_t dx, int32_t dy) const { return { left + dx, top + dy, right - dx, bottom - dy }; }
    // The common part; an empty rectangle when there is none.
    Rect Intersect(const Rect& other) const
    {
        return { std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
            std::min(bottom, other.bottom) };
    }

    bool operator==(const Rect&) const = default;
};

} // namespace tolva
