#pragma once
#include "core/decimal_text.h"
#include "core/string.h"
#include <optional>

namespace tolva {

// Text read as a number the way the en-US locale's conversions read it: blanks around it, a
// sign before or after the digits, parentheses for a negative amount, the "$" sign before or
// after, "," between the digits of the whole part, "." as the decimal point, an exponent
// ("1.5E3"), and "&H" / "&O" for hexadecimal and octal whole numbers. The digits come without
// leading or trailing zeros. Nothing when the text is not such a number.
std::optional<DecimalText> ParseLocaleNumber(StringView text);

} // namespace tolva
