#pragma once
#include "core/currency.h"
#include "core/string.h"
#include <cstdint>
#include <optional>
#include <string>

namespace tolva {

// A number written in decimal ("  -12.5E3 "): surrounding blanks, an optional sign, digits with
// an optional decimal point, an optional exponent. The point is always "."; locale-aware text
// goes through the platform's formatting engine instead.
struct DecimalText {
    bool negative = false;
    std::string digits; // no leading zeros; empty for zero
    int32_t exponent = 0; // value = digits x 10^exponent

    static std::optional<DecimalText> Parse(StringView text);

    double ToDouble() const; // throws Overflow beyond the double range
    Currency ToCurrency() const; // exact, rounded half to even at the fourth decimal; Overflow
};

} // namespace tolva
