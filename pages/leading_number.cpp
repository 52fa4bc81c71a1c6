#include "pages/leading_number.h"
#include "core/decimal_text.h"

namespace tolva {

namespace {

bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

// The length of the digits starting at i.
size_t DigitsFrom(StringView text, size_t i)
{
    size_t end = i;
    while (end < text.size() && IsDigit(text[end]))
        ++end;
    return end - i;
}

} // namespace

double LeadingNumber(StringView text)
{
    size_t i = 0;
    while (i < text.size() && (text[i] == u' ' || text[i] == u'\t'))
        ++i;
    const size_t start = i;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
        ++i;
    size_t digits = DigitsFrom(text, i);
    i += digits;
    if (i < text.size() && text[i] == u'.') {
        const size_t fraction = DigitsFrom(text, i + 1);
        digits += fraction;
        i += 1 + fraction;
    }
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == u'E' || text[i] == u'e')) {
        size_t e = i + 1;
        if (e < text.size() && (text[e] == u'+' || text[e] == u'-'))
            ++e;
        if (const size_t exponent = DigitsFrom(text, e); exponent > 0)
            i = e + exponent;
    }
    const auto number = DecimalText::Parse(text.substr(start, i - start));
    return number ? number->ToDouble() : 0;
}

} // namespace tolva
