#pragma once
#include "core/decimal_text.h"
#include <string>

namespace tolva {

// The decimal digits a number is formatted from (DecimalText: digits x 10^exponent, without
// leading or trailing zeros). A double keeps its 15 significant digits, a single its 7, as
// the platform's conversions to text do.
DecimalText DigitsOfDouble(double value, int significantDigits = 15);
DecimalText DigitsOfCurrency(Currency amount);
DecimalText DigitsOfInteger(int64_t value);

// The number times 10^power (exact).
DecimalText Scaled(DecimalText number, int32_t power);

// The number rounded half away from zero to the given count of fraction digits.
DecimalText RoundedToFraction(DecimalText number, int32_t fractionDigits);

// The digits before the point ("" for a number below 1) and the first count digits after it.
std::string WholeDigits(const DecimalText& number);
std::string FractionDigits(const DecimalText& number, int32_t count);

// The position of the first significant digit: 1 for 1 to 9.99, 0 for 0.1 to 0.999, -1 for
// 0.01 ...; meaningless for zero.
int32_t Magnitude(const DecimalText& number);

} // namespace tolva
