#pragma once
#include "core/format/formatter.h"
#include <optional>

namespace tolva {

// The formatting and parsing of the en-US locale, written out for platforms without the
// system's own variant functions (the headless platform and its tests). Today's date comes from
// the system clock unless a date was fixed, which makes tests deterministic.
class PortableFormatter final : public Formatter {
public:
    String Format(const Variant& value, StringView format) override;
    Currency TextToCurrency(StringView text) override;
    OleDate TextToDate(StringView text) override;
    bool IsDate(StringView text) override;
    bool IsNumeric(StringView text) override;
    OleDate Today() override;

    void FixToday(OleDate date) { m_today = date; }

private:
    std::optional<OleDate> m_today;
};

} // namespace tolva
