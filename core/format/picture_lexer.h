#pragma once
#include "core/string.h"
#include <vector>

namespace tolva {

// One element of a format picture: a character that may have a meaning in the picture, or text
// that is always shown as written (quoted with "..." or escaped with a backslash).
struct PictureItem {
    char16_t symbol = 0; // 0 for literal text
    String literal;

    bool IsLiteral() const { return symbol == 0; }
    bool Is(char16_t c) const { return symbol == c; }
};

using PictureSection = std::vector<PictureItem>;

// What a picture formats, decided by its first character with a meaning: a number ("0", "#",
// ".", ",", "%"), a date (a date or time letter, AM/PM, "/", ":") or text ("@", "&", "<", ">",
// "!"). A picture of literals only is a number picture.
enum class PictureKind { Number, Date, Text };
PictureKind KindOfPicture(const std::vector<PictureSection>& sections);

// Whether the symbols from index i spell word (given in lower case), in either case.
bool SpellsAt(const PictureSection& section, size_t i, StringView word);

// The sections of a format expression, split at the semicolons that are not quoted or escaped.
// An unterminated quote runs to the end; a trailing backslash stands for itself.
std::vector<PictureSection> ReadPictureSections(StringView expression);

} // namespace tolva
