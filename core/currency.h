#pragma once
#include <compare>
#include <cstdint>

namespace tolva {

// A 64-bit signed fixed-point amount with four decimal places (value x 10,000).
// Arithmetic is checked: a result outside the 64-bit range throws the Overflow run-time error.
class Currency {
public:
    static constexpr int64_t Scale = 10000;

    constexpr Currency() = default;
    static constexpr Currency FromRaw(int64_t scaled) { return Currency(scaled); }
    static Currency FromInt(int64_t whole);
    static Currency FromDouble(double value); // rounds half to even at the fourth decimal

    constexpr int64_t Raw() const { return m_scaled; }
    double ToDouble() const;

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator-() const;
    Currency operator*(Currency other) const;
    Currency operator/(Currency other) const; // throws DivisionByZero for a zero divisor

    constexpr auto operator<=>(const Currency&) const = default;

private:
    constexpr explicit Currency(int64_t scaled) : m_scaled(scaled) {}
    int64_t m_scaled = 0;
};

} // namespace tolva
