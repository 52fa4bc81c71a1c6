#include "core/format/decimal_digits.h"
#include "core/automation_error.h"
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace tolva {

namespace {

void Trim(DecimalText& number)
{
    const size_t first = number.digits.find_first_not_of('0');
    if (first == std::string::npos) {
        number.digits.clear();
        number.exponent = 0;
        number.negative = false;
        return;
    }
    number.digits.erase(0, first);
    while (number.digits.back() == '0') {
        number.digits.pop_back();
        ++number.exponent;
    }
}

} // namespace

DecimalText DigitsOfDouble(double value, int significantDigits)
{
    if (!std::isfinite(value))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    DecimalText number;
    if (value == 0)
        return number;
    char buffer[64];
    const auto end = std::to_chars(
        buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, significantDigits - 1)
                         .ptr;
    // d.ddddde+XX
    const std::string text(buffer, end);
    const size_t e = text.find('e');
    number.digits = text.substr(0, 1) + text.substr(2, e > 2 ? e - 2 : 0);
    number.exponent = std::atoi(text.c_str() + e + 1) - int32_t(number.digits.size() - 1);
    number.negative = value < 0;
    Trim(number);
    return number;
}

DecimalText DigitsOfCurrency(Currency amount)
{
    const int64_t raw = amount.Raw();
    DecimalText number;
    number.negative = raw < 0;
    number.digits = std::to_string(raw < 0 ? 0 - uint64_t(raw) : uint64_t(raw));
    number.exponent = -4;
    Trim(number);
    return number;
}

DecimalText DigitsOfInteger(int64_t value)
{
    DecimalText number;
    number.negative = value < 0;
    number.digits = std::to_string(value < 0 ? 0 - uint64_t(value) : uint64_t(value));
    Trim(number);
    return number;
}

DecimalText Scaled(DecimalText number, int32_t power)
{
    if (!number.digits.empty())
        number.exponent += power;
    return number;
}

int32_t Magnitude(const DecimalText& number)
{
    return int32_t(number.digits.size()) + number.exponent;
}

DecimalText RoundedToFraction(DecimalText number, int32_t fractionDigits)
{
    if (number.digits.empty() || number.exponent >= -fractionDigits)
        return number;
    // Keep the digits down to 10^-fractionDigits, look at the first one dropped.
    const int64_t keep = int64_t(number.digits.size()) + number.exponent + fractionDigits;
    if (keep < 0)
        return DecimalText {};
    const bool up = number.digits[size_t(keep)] >= '5';
    number.digits.resize(size_t(keep));
    number.exponent = -fractionDigits;
    if (up) {
        size_t i = number.digits.size();
        while (i > 0 && number.digits[i - 1] == '9')
            number.digits[--i] = '0';
        if (i == 0)
            number.digits.insert(number.digits.begin(), '1');
        else
            ++number.digits[i - 1];
    }
    const bool negative = number.negative;
    Trim(number);
    if (!number.digits.empty())
        number.negative = negative;
    return number;
}

std::string WholeDigits(const DecimalText& number)
{
    if (number.digits.empty())
        return {};
    const int64_t whole = int64_t(number.digits.size()) + number.exponent;
    if (whole <= 0)
        return {};
    if (number.exponent >= 0)
        return number.digits + std::string(size_t(number.exponent), '0');
    return number.digits.substr(0, size_t(whole));
}

std::string FractionDigits(const DecimalText& number, int32_t count)
{
    std::string fraction(size_t(count), '0');
    if (number.digits.empty() || number.exponent >= 0)
        return fraction;
    // digit k (0-based from the left) stands for 10^(exponent + size - 1 - k)
    const int64_t size = int64_t(number.digits.size());
    for (int64_t k = 0; k < size; ++k) {
        const int64_t place = -(number.exponent + size - 1 - k); // 1 for tenths
        if (place >= 1 && place <= count)
            fraction[size_t(place - 1)] = number.digits[size_t(k)];
    }
    return fraction;
}

} // namespace tolva
