#include "core/format/number_parsing.h"
#include <algorithm>
#include <cstdint>
#include <string>

namespace tolva {

namespace {

bool IsBlank(char16_t c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f';
}

bool IsDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

int HexDigit(char16_t c)
{
    if (IsDigit(c))
        return c - u'0';
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    return -1;
}

constexpr int32_t ExponentLimit = 1000000; // far beyond any double; keeps the sums in range

class Scanner {
public:
    explicit Scanner(StringView text)
        : m_text(text)
    { }

    bool AtEnd() const { return m_at == m_text.size(); }
    char16_t Peek() const { return AtEnd() ? 0 : m_text[m_at]; }
    bool Take(char16_t c)
    {
        if (AtEnd() || m_text[m_at] != c)
            return false;
        ++m_at;
        return true;
    }
    char16_t Next() { return m_text[m_at++]; }
    void SkipBlanks()
    {
        while (!AtEnd() && IsBlank(m_text[m_at]))
            ++m_at;
    }

private:
    StringView m_text;
    size_t m_at = 0;
};

// The signs, parenthesis and currency sign around the digits, each allowed once.
struct Affixes {
    bool sign = false;
    bool negative = false;
    bool open = false;
    bool currency = false;

    bool TakeLeading(Scanner& in)
    {
        if (!sign && (in.Peek() == u'+' || in.Peek() == u'-')) {
            sign = true;
            negative = in.Next() == u'-';
        } else if (!open && !sign && in.Take(u'(')) {
            open = true;
        } else if (!currency && in.Take(u'$')) {
            currency = true;
        } else {
            return false;
        }
        in.SkipBlanks();
        return true;
    }

    bool TakeTrailing(Scanner& in, bool& closed)
    {
        if (!sign && !open && (in.Peek() == u'+' || in.Peek() == u'-')) {
            sign = true;
            negative = in.Next() == u'-';
        } else if (open && !closed && in.Take(u')')) {
            closed = true;
        } else if (!currency && in.Take(u'$')) {
            currency = true;
        } else {
            return false;
        }
        in.SkipBlanks();
        return true;
    }
};

// The digits of a whole number in base 2^bitsPerDigit, as decimal digits.
std::optional<DecimalText> ReadBased(Scanner& in, int bitsPerDigit)
{
    uint64_t value = 0;
    int count = 0;
    const int base = 1 << bitsPerDigit;
    for (int digit = HexDigit(in.Peek()); digit >= 0 && digit < base; digit = HexDigit(in.Peek())) {
        in.Next();
        if (value >> (64 - bitsPerDigit))
            return std::nullopt;
        value = (value << bitsPerDigit) | uint64_t(digit);
        ++count;
    }
    if (count == 0)
        return std::nullopt;
    DecimalText number;
    if (value != 0)
        number.digits = std::to_string(value);
    return number;
}

std::optional<DecimalText> ReadDecimal(Scanner& in)
{
    DecimalText number;
    int mantissaDigits = 0;
    int32_t fractionDigits = 0;
    while (IsDigit(in.Peek()) || (mantissaDigits > 0 && in.Peek() == u',')) {
        const char16_t c = in.Next();
        if (c == u',')
            continue;
        ++mantissaDigits;
        if (!number.digits.empty() || c != u'0')
            number.digits += char(c);
    }
    if (in.Take(u'.')) {
        while (IsDigit(in.Peek())) {
            const char16_t c = in.Next();
            ++mantissaDigits;
            if (fractionDigits < ExponentLimit)
                ++fractionDigits;
            if (!number.digits.empty() || c != u'0')
                number.digits += char(c);
        }
    }
    if (mantissaDigits == 0)
        return std::nullopt;
    int32_t exponent = 0;
    if (in.Peek() == u'e' || in.Peek() == u'E') {
        in.Next();
        bool negativeExponent = false;
        if (in.Peek() == u'+' || in.Peek() == u'-')
            negativeExponent = in.Next() == u'-';
        if (!IsDigit(in.Peek()))
            return std::nullopt;
        while (IsDigit(in.Peek()))
            exponent = std::min(exponent * 10 + (in.Next() - u'0'), ExponentLimit);
        if (negativeExponent)
            exponent = -exponent;
    }
    number.exponent = number.digits.empty() ? 0 : exponent - fractionDigits;
    while (!number.digits.empty() && number.digits.back() == '0') {
        number.digits.pop_back();
        ++number.exponent;
    }
    return number;
}

} // namespace

std::optional<DecimalText> ParseLocaleNumber(StringView text)
{
    Scanner in(text);
    in.SkipBlanks();
    Affixes affixes;
    while (affixes.TakeLeading(in)) { }

    std::optional<DecimalText> number;
    if (in.Take(u'&')) {
        if (in.Take(u'H') || in.Take(u'h'))
            number = ReadBased(in, 4);
        else if (in.Take(u'O') || in.Take(u'o'))
            number = ReadBased(in, 3);
    } else {
        number = ReadDecimal(in);
    }
    if (!number)
        return std::nullopt;

    in.SkipBlanks();
    bool closed = false;
    while (affixes.TakeTrailing(in, closed)) { }
    if (!in.AtEnd() || affixes.open != closed)
        return std::nullopt;
    number->negative = (affixes.negative || affixes.open) && !number->digits.empty();
    return number;
}

} // namespace tolva
