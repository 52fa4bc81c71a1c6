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
