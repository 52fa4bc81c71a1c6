#pragma once
#include "core/currency.h"
#include "core/ole_date.h"
#include "core/string.h"
#include "core/variant.h"

namespace tolva {

// Formatting and parsing as the platform's variant functions do them in the user's locale:
// Format(value, expression) with the named formats and the number and date pictures, the
// locale's conversions of text to currency and to date, the is-date and is-numeric tests and
// today's date. The DLL answers with the system's own functions; the headless platform with a
// portable engine for the en-US locale.
class Formatter {
public:
    virtual ~Formatter() = default;

    // Format(value, format); an empty format is the plain conversion of the value to text.
    virtual String Format(const Variant& value, StringView format) = 0;

    // Throw TypeMismatch (13) for text that is not a number or a date, Overflow (6) out of range.
    virtual Currency TextToCurrency(StringView text) = 0;
    virtual OleDate TextToDate(StringView text) = 0;

    virtual bool IsDate(StringView text) = 0;
    virtual bool IsNumeric(StringView text) = 0;

    // Today's date, without a time of day.
    virtual OleDate Today() = 0;
};

} // namespace tolva
