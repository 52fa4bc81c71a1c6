#include "core/format/portable_formatter.h"
#include "core/automation_error.h"
#include "core/format/number_parsing.h"
#include <ctime>

namespace tolva {

namespace {

// What the engine does not do is refused rather than answered wrongly.
[[noreturn]] void ThrowNotSupported(StringView what)
{
    throw AutomationError(int32_t(0x800A0000u + RunTimeError::InvalidProcedureCall), u"TolvaKit",
        u"The portable formatter does not handle " + String(what));
}

} // namespace

String PortableFormatter::Format(const Variant& value, StringView format)
{
    if (format.empty())
        return value.ToString();
    ThrowNotSupported(u"the format expression \"" + String(format) + u"\"");
}

Currency PortableFormatter::TextToCurrency(StringView text)
{
    const auto number = ParseLocaleNumber(text);
    if (!number)
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    return number->ToCurrency();
}

OleDate PortableFormatter::TextToDate(StringView text)
{
    ThrowNotSupported(u"dates written as text");
}

bool PortableFormatter::IsDate(StringView text)
{
    ThrowNotSupported(u"dates written as text");
}

bool PortableFormatter::IsNumeric(StringView text)
{
    const auto number = ParseLocaleNumber(text);
    if (!number)
        return false;
    try {
        number->ToDouble();
        return true;
    } catch (const AutomationError&) {
        return false; // beyond the range of a double
    }
}

OleDate PortableFormatter::Today()
{
    if (m_today)
        return *m_today;
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    return OleDate::FromYmd(local->tm_year + 1900, local->tm_mon + 1, local->tm_mday);
}

} // namespace tolva
