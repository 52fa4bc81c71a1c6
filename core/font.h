#pragma once
#include "core/string.h"
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

} // namespace tolva
