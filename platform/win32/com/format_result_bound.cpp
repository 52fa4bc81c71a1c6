#include "platform/win32/com/format_result_bound.h"
#include "core/format/named_formats.h"
#include "platform/win32/com/ole_variant.h"
#include <cmath>
#include <limits>

namespace tolva::win32 {

namespace {

constexpr size_t Unbounded = std::numeric_limits<size_t>::max() / 4;

// The longest text one character of a picture stands for.
size_t CharacterBound(char16_t c)
{
    switch (AsciiLower(c)) {
    case u'c': return 48; // a general date
    case u'd': return 12; // six of them are a long date
    case u'm': return 6; // four of them are a month name
    case u't': return 6; // five of them are a long time
    case u'a':
    case u'p': return 4; // AM/PM designators
    case u'/':
    case u':': return 4; // the locale's separators
    default: return 3;
    }
}

// Whole digits of a number with a separator every three, or 0 for values without many.
size_t DigitsBound(const VARIANT& value)
{
    double number = 0;
    OleVariant converted;
    if (V_VT(&value) == VT_BSTR) {
        const HRESULT hr = VarR8FromStr(V_BSTR(&value), LOCALE_USER_DEFAULT, 0, &number);
        if (hr == DISP_E_OVERFLOW)
            return Unbounded;
        if (FAILED(hr))
            return 0;
    } else if (V_VT(&value) == VT_R8) {
        number = V_R8(&value);
    } else if (V_VT(&value) == VT_R4) {
        number = V_R4(&value);
    } else {
        return 24; // currency and the integer types
    }
    if (!std::isfinite(number))
        return Unbounded;
    const double magnitude = std::fabs(number);
    const size_t digits = magnitude < 10 ? 1 : size_t(std::log10(magnitude)) + 1;
    return digits + digits / 3 + 2;
}

} // namespace

size_t FormatResultBound(const VARIANT& value, StringView format)
{
    // Named formats write a number with all its digits, or in a short form, or a date.
    constexpr size_t Words = 64;
    if (const auto named = FindNamedFormat(format)) {
        switch (*named) {
        case NamedFormat::Currency:
        case NamedFormat::Fixed:
        case NamedFormat::Standard:
        case NamedFormat::Percent: return DigitsBound(value) + Words;
        default: return Words;
        }
    }
    size_t bound = DigitsBound(value);
    for (char16_t c : format)
        bound += CharacterBound(c);
    return bound;
}

} // namespace tolva::win32
