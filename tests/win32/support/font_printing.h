#pragma once
#include "core/font.h"
#include <ostream>

namespace tolva {

// Fonts in test failures as a reader compares them: "Tahoma" 9 pt, weight 700, charset 0, flags.
inline void PrintTo(const Font& font, std::ostream* out)
{
    *out << '"' << ToUtf8(font.name) << "\" " << font.size << " pt, weight " << font.weight << ", charset "
         << font.charset << (font.italic ? ", italic" : "") << (font.underline ? ", underline" : "")
         << (font.strikethrough ? ", strikethrough" : "");
}

} // namespace tolva
