#pragma once
#include <string>
#include <string_view>

namespace tolva {

// Text is kept as UTF-16 code units, as the automation clients hand it over, so that
// character positions (access keys, selections) mean the same on every platform.
using String = std::u16string;
using StringView = std::u16string_view;

// ASCII letters compared without their case (the names and keywords of formats and values).
char16_t AsciiLower(char16_t c);
bool EqualsIgnoringCase(StringView a, StringView b);

// Conversions for diagnostics, file names and tests.
std::string ToUtf8(StringView text);
String FromUtf8(std::string_view text);

// The capital of a letter a to z; any other character as it is. Access keys compare this way.
constexpr char16_t UpperCase(char16_t c)
{
    return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c;
}

} // namespace tolva
