#include "core/long_arithmetic.h"
#include "core/automation_error.h"
#include <cmath>
#include <limits>

namespace tolva {

int32_t CheckedAdd(int32_t a, int32_t b)
{
    int32_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return sum;
}

int32_t CheckedSubtract(int32_t a, int32_t b)
{
    int32_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return difference;
}

int32_t CheckedMultiply(int32_t a, int32_t b)
{
    int32_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return product;
}

namespace {

int32_t CheckedLong(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= double(std::numeric_limits<int32_t>::min()) && rounded <= double(std::numeric_limits<int32_t>::max())))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return int32_t(rounded);
}

} // namespace

int32_t IntegerDivide(double a, double b)
{
    const int32_t dividend = CheckedLong(a);
    const int32_t divisor = CheckedLong(b);
    if (divisor == 0)
        throw AutomationError::RunTime(RunTimeError::DivisionByZero);
    if (dividend == std::numeric_limits<int32_t>::min() && divisor == -1)
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return dividend / divisor;
}

int32_t RoundToLong(double value)
{
    if (std::isnan(value))
        return 0;
    const double rounded = std::nearbyint(value); // the default rounding mode: halves to even
    if (rounded <= double(std::numeric_limits<int32_t>::min()))
        return std::numeric_limits<int32_t>::min();
    if (rounded >= double(std::numeric_limits<int32_t>::max()))
        return std::numeric_limits<int32_t>::max();
    return int32_t(rounded);
}

} // namespace tolva
