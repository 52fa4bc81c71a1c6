#include "core/currency.h"
#include "core/automation_error.h"
#include <cmath>
#include <limits>

namespace tolva {

namespace {

// Products and quotients of scaled amounts need 128 bits in between; this is done by hand
// because 32-bit targets have no 128-bit integer type.
struct UInt128 {
    uint64_t high = 0;
    uint64_t low = 0;
};

UInt128 Multiply(uint64_t a, uint64_t b)
{
    const uint64_t aLow = a & 0xFFFFFFFF, aHigh = a >> 32;
    const uint64_t bLow = b & 0xFFFFFFFF, bHigh = b >> 32;
    const uint64_t lowLow = aLow * bLow;
    const uint64_t highLow = aHigh * bLow;
    const uint64_t lowHigh = aLow * bHigh;
    const uint64_t highHigh = aHigh * bHigh;
    const uint64_t middle = (lowLow >> 32) + (highLow & 0xFFFFFFFF) + (lowHigh & 0xFFFFFFFF);
    return { highHigh + (highLow >> 32) + (lowHigh >> 32) + (middle >> 32), (middle << 32) | (lowLow & 0xFFFFFFFF) };
}

// n / d rounded half to even; d must be in 1 .. 2^63.
UInt128 DivideRoundingHalfEven(UInt128 n, uint64_t d)
{
    UInt128 q;
    uint64_t r = 0;
    for (int bit = 127; bit >= 0; --bit) {
        const uint64_t next = bit >= 64 ? (n.high >> (bit - 64)) & 1 : (n.low >> bit) & 1;
        r = (r << 1) | next;
        const bool set = r >= d;
        if (set)
            r -= d;
        if (bit >= 64)
            q.high |= uint64_t(set) << (bit - 64);
        else
            q.low |= uint64_t(set) << bit;
    }
    const uint64_t twice = r << 1;
    if (twice > d || (twice == d && (q.low & 1))) {
        if (++q.low == 0)
            ++q.high;
    }
    return q;
}

uint64_t Magnitude(int64_t v)
{
    return v < 0 ? 0 - uint64_t(v) : uint64_t(v);
}

[[noreturn]] void ThrowOverflow()
{
    throw AutomationError::RunTime(RunTimeError::Overflow);
}

int64_t ApplySign(UInt128 magnitude, bool negative)
{
    constexpr uint64_t limit = uint64_t(1) << 63;
    if (magnitude.high != 0 || magnitude.low > limit || (magnitude.low == limit && !negative))
        ThrowOverflow();
    return negative ? int64_t(0 - magnitude.low) : int64_t(magnitude.low);
}

} // namespace

Currency Currency::FromInt(int64_t whole)
{
    int64_t scaled = 0;
    if (__builtin_mul_overflow(whole, Scale, &scaled))
        ThrowOverflow();
    return Currency(scaled);
}

Currency Currency::FromDouble(double value)
{
    // nearbyint rounds half to even in the default rounding mode.
    const double scaled = std::nearbyint(value * double(Scale));
    if (!(scaled >= -9223372036854775808.0 && scaled < 9223372036854775808.0))
        ThrowOverflow();
    return Currency(int64_t(scaled));
}

double Currency::ToDouble() const
{
    return double(m_scaled) / double(Scale);
}

Currency Currency::operator+(Currency other) const
{
    int64_t sum = 0;
    if (__builtin_add_overflow(m_scaled, other.m_scaled, &sum))
        ThrowOverflow();
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const
{
    int64_t difference = 0;
    if (__builtin_sub_overflow(m_scaled, other.m_scaled, &difference))
        ThrowOverflow();
    return Currency(difference);
}

Currency Currency::operator-() const
{
    if (m_scaled == std::numeric_limits<int64_t>::min())
        ThrowOverflow();
    return Currency(-m_scaled);
}

Currency Currency::operator*(Currency other) const
{
    const bool negative = (m_scaled < 0) != (other.m_scaled < 0);
    const UInt128 product = Multiply(Magnitude(m_scaled), Magnitude(other.m_scaled));
    return Currency(ApplySign(DivideRoundingHalfEven(product, Scale), negative));
}

Currency Currency::operator/(Currency other) const
{
    if (other.m_scaled == 0)
        throw AutomationError::RunTime(RunTimeError::DivisionByZero);
    const bool negative = (m_scaled < 0) != (other.m_scaled < 0);
    const UInt128 numerator = Multiply(Magnitude(m_scaled), Scale);
    return Currency(ApplySign(DivideRoundingHalfEven(numerator, Magnitude(other.m_scaled)), negative));
}

} // namespace tolva
