#pragma once
#include <string>
#include <string_view>

namespace tolva {

// Text is kept as UTF-16 code units, as the automation clients hand it over, so that
// character positions (access keys, selections) mean the same on every platform.
using String = std::u16string;
using StringView = std::u16string_view;

// Conversions for diagnostics, file names and tests.
std::string ToUtf8(StringView text);
String FromUtf8(std::string_view text);

} // namespace tolva
