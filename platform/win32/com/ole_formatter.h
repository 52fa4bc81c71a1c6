#pragma once
#include "core/format/formatter.h"

namespace tolva::win32 {

// Formatting and parsing by the system's variant functions in the user's locale: VarFormat for
// Format, the locale-aware conversions of text to currency and to date, the language's
// is-date and is-numeric tests (the text converts to a date, to a double), and today from the
// system clock. A failure is the run-time error the language would raise for it.
class OleFormatter final : public Formatter {
public:
    String Format(const Variant& value, StringView format) override;
    Currency TextToCurrency(StringView text) override;
    OleDate TextToDate(StringView text) override;
    bool IsDate(StringView text) override;
    bool IsNumeric(StringView text) override;
    OleDate Today() override;
};

} // namespace tolva::win32
