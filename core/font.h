#pragma once
#include "core/string.h"
#include <cmath>
#include <cstdint>

namespace tolva {

// The attributes of a standard font object. The COM layer keeps the live font object and
// mirrors it here; the core only reads and assigns whole values.
struct Font {
    String name = u"MS Sans Serif";
    double size = 8.25; // points, four decimals as the font object keeps them
    int16_t weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    int16_t charset = 0;

    bool Bold() const { return weight >= 700; }
    void SetBold(bool bold) { weight = bold ? 700 : 400; }

    bool operator==(const Font&) const = default;
};

// A font object keeps its size as points x 10,000 in 32 bits.
constexpr double MaxKeptFontSize = 429496.7295;

// size as a font object keeps it: to four decimals, from 0 to MaxKeptFontSize (the nearer end for
// anything outside, 0 for what is not a number).
inline double KeptFontSize(double size)
{
    if (!(size > 0))
        return 0;
    if (size >= MaxKeptFontSize)
        return MaxKeptFontSize;
    return double(std::llround(size * 10000.0)) / 10000.0;
}

} // namespace tolva
