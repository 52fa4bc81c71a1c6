#pragma once
#include <cstdint>

namespace tolva {

// 32-bit integer arithmetic as the form language does it for its Long values: a sum or
// difference past 32 bits throws the Overflow run-time error instead of wrapping.
int32_t CheckedAdd(int32_t a, int32_t b);
int32_t CheckedSubtract(int32_t a, int32_t b);
int32_t CheckedMultiply(int32_t a, int32_t b);

// a \ b: both operands rounded to Longs (halves to even, Overflow past 32 bits), the quotient
// truncated toward zero; a zero divisor is Division by zero (11).
int32_t IntegerDivide(double a, double b);

// A floating-point value rounded to a Long, halves to even. Values past the 32-bit range are
// held at its ends (and NaN becomes 0), so drawing and geometry never fail on odd sizes.
int32_t RoundToLong(double value);

} // namespace tolva
