#include "core/decimal_text.h"
#include "core/automation_error.h"
#include <algorithm>
#include <charconv>

namespace tolva {

namespace {

constexpr int32_t ExponentLimit = 1000000; // far beyond any double; keeps the sums in range

bool IsBlank(char16_t c)
{
    return c == u' ' || c == u'\t';
}
bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

[[noreturn]] void ThrowOverflow()
{
    throw AutomationError::RunTime(RunTimeError::Overflow);
}

} // namespace

std::optional<DecimalText> DecimalText::Parse(StringView text)
{
    size_t begin = 0, end = text.size();
    while (begin < end && IsBlank(text[begin]))
        ++begin;
    while (end > begin && IsBlank(text[end - 1]))
        --end;
    text = text.substr(begin, end - begin);

    DecimalText result;
    size_t i = 0;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
        result.negative = text[i++] == u'-';
    size_t mantissaDigits = 0;
    int32_t fractionDigits = 0;
    bool point = false;
    for (; i < text.size(); ++i) {
        if (IsDigit(text[i])) {
            ++mantissaDigits;
            if (point)
                ++fractionDigits;
            if (!result.digits.empty() || text[i] != u'0')
                result.digits += char(text[i]);
        } else if (text[i] == u'.' && !point) {
            point = true;
        } else {
            break;
        }
    }
    if (mantissaDigits == 0 || fractionDigits > ExponentLimit)
        return std::nullopt;
    int32_t exponent = 0;
    if (i < text.size() && (text[i] == u'e' || text[i] == u'E')) {
        ++i;
        bool negativeExponent = false;
        if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
            negativeExponent = text[i++] == u'-';
        if (i == text.size())
            return std::nullopt;
        for (; i < text.size() && IsDigit(text[i]); ++i)
            exponent = std::min(exponent * 10 + (text[i] - u'0'), ExponentLimit);
        if (negativeExponent)
            exponent = -exponent;
    }
    if (i != text.size())
        return std::nullopt;
    result.exponent = result.digits.empty() ? 0 : exponent - fractionDigits;
    return result;
}

double DecimalText::ToDouble() const
{
    if (digits.empty())
        return 0.0;
    const std::string text = digits + "e" + std::to_string(exponent);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range) {
        if (int64_t(digits.size()) + exponent > 0)
            ThrowOverflow();
        value = 0.0;
    }
    return negative ? -value : value;
}

Currency DecimalText::ToCurrency() const
{
    if (digits.empty())
        return Currency();
    constexpr uint64_t limit = uint64_t(1) << 63;
    const int64_t shift = int64_t(exponent) + 4; // the scaled amount is digits x 10^shift
    const int64_t kept
        = std::max<int64_t>(0, std::min<int64_t>(int64_t(digits.size()), int64_t(digits.size()) + shift));
    uint64_t magnitude = 0;
    const auto append = [&](uint64_t digit) {
        if (__builtin_mul_overflow(magnitude, uint64_t(10), &magnitude) || magnitude + digit > limit)
            ThrowOverflow();
        magnitude += digit;
    };
    for (int64_t k = 0; k < kept; ++k)
        append(uint64_t(digits[k] - '0'));
    for (int64_t k = 0; k < shift; ++k)
        append(0);
    if (kept < int64_t(digits.size()) && int64_t(digits.size()) + shift >= 0) {
        const int first = digits[kept] - '0';
        const bool restNonZero = std::any_of(digits.begin() + kept + 1, digits.end(), [](char c) { return c != '0'; });
        if (first > 5 || (first == 5 && (restNonZero || (magnitude & 1)))) {
            if (magnitude == limit)
                ThrowOverflow();
            ++magnitude;
        }
    }
    if (magnitude == limit && !negative)
        ThrowOverflow();
    return Currency::FromRaw(negative ? int64_t(0 - magnitude) : int64_t(magnitude));
}

} // namespace tolva
