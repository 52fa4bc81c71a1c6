#include "core/variant.h"
#include "core/automation_error.h"
#include "core/decimal_text.h"
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace tolva {

namespace {

template <typename... F> struct Overloaded : F... {
    using F::operator()...;
};
template <typename... F> Overloaded(F...) -> Overloaded<F...>;

[[noreturn]] void ThrowTypeMismatch()
{
    throw AutomationError::RunTime(RunTimeError::TypeMismatch);
}
[[noreturn]] void ThrowOverflow()
{
    throw AutomationError::RunTime(RunTimeError::Overflow);
}

DecimalText ParseNumber(StringView text)
{
    auto number = DecimalText::Parse(text);
    if (!number)
        ThrowTypeMismatch();
    return *number;
}

// Rounds half to even into Int, or Overflow.
template <typename Int> Int RoundToInteger(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= double(std::numeric_limits<Int>::min()) && rounded <= double(std::numeric_limits<Int>::max())))
        ThrowOverflow();
    return Int(rounded);
}

template <typename Int> Int CheckedNarrow(int64_t value)
{
    if (value < std::numeric_limits<Int>::min() || value > std::numeric_limits<Int>::max())
        ThrowOverflow();
    return Int(value);
}

// The whole amount of a currency value, rounded half to even.
int64_t RoundCurrency(Currency amount)
{
    const int64_t raw = amount.Raw();
    int64_t whole = raw / Currency::Scale;
    const int64_t rest = raw % Currency::Scale;
    const int64_t twice = 2 * (rest < 0 ? -rest : rest);
    if (twice > Currency::Scale || (twice == Currency::Scale && (whole & 1)))
        whole += raw < 0 ? -1 : 1;
    return whole;
}

// Integer or Int-sized whole number from any numeric storage.
template <typename Int> Int ToInteger(const Variant::Storage& value)
{
    return std::visit(Overloaded {
                          [](std::monostate) { return Int(0); },
                          [](bool v) { return Int(v ? -1 : 0); },
                          [](int16_t v) { return CheckedNarrow<Int>(v); },
                          [](int32_t v) { return CheckedNarrow<Int>(v); },
                          [](float v) { return RoundToInteger<Int>(v); },
                          [](double v) { return RoundToInteger<Int>(v); },
                          [](Currency v) { return CheckedNarrow<Int>(RoundCurrency(v)); },
                          [](OleDate v) { return RoundToInteger<Int>(v.Serial()); },
                          [](const String& v) { return RoundToInteger<Int>(ParseNumber(v).ToDouble()); },
                          [](const Font&) -> Int { ThrowTypeMismatch(); },
                      },
        value);
}

// Shortest form with the given significant digits, exponent as "E+20" / "E-05".
String FormatReal(double value, int significantDigits)
{
    if (value == 0)
        return u"0";
    char buffer[64];
    const auto result
        = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, significantDigits);
    String text;
    for (const char* p = buffer; p != result.ptr; ++p)
        text += char16_t(*p == 'e' ? 'E' : *p);
    return text;
}

String FormatCurrency(Currency amount)
{
    const int64_t raw = amount.Raw();
    const uint64_t magnitude = raw < 0 ? 0 - uint64_t(raw) : uint64_t(raw);
    std::string text = std::to_string(magnitude / Currency::Scale);
    uint64_t fraction = magnitude % Currency::Scale;
    if (fraction != 0) {
        std::string decimals = std::to_string(fraction + Currency::Scale).substr(1);
        decimals.erase(decimals.find_last_not_of('0') + 1);
        text += "." + decimals;
    }
    return FromUtf8(raw < 0 ? "-" + text : text);
}

// The en-US short form the language gives a date: "1/2/2003", "1/2/2003 3:04:05 PM", and the
// time alone on day 0.
String FormatDate(OleDate date)
{
    std::string text;
    if (std::trunc(date.Serial()) != 0)
        text = std::to_string(date.Month()) + "/" + std::to_string(date.Day()) + "/" + std::to_string(date.Year());
    if (text.empty() || date.Hour() != 0 || date.Minute() != 0 || date.Second() != 0) {
        const int hour12 = date.Hour() % 12 == 0 ? 12 : date.Hour() % 12;
        char time[32];
        std::snprintf(
            time, sizeof time, "%d:%02d:%02d %s", hour12, date.Minute(), date.Second(), date.Hour() < 12 ? "AM" : "PM");
        text = text.empty() ? time : text + " " + time;
    }
    return FromUtf8(text);
}

} // namespace

bool Variant::ToBool() const
{
    return std::visit(Overloaded {
                          [](std::monostate) { return false; },
                          [](bool v) { return v; },
                          [](int16_t v) { return v != 0; },
                          [](int32_t v) { return v != 0; },
                          [](float v) { return v != 0; },
                          [](double v) { return v != 0; },
                          [](Currency v) { return v.Raw() != 0; },
                          [](OleDate v) { return v.Serial() != 0; },
                          [](const String& v) {
                              if (EqualsIgnoringCase(v, u"True"))
                                  return true;
                              if (EqualsIgnoringCase(v, u"False"))
                                  return false;
                              return !ParseNumber(v).digits.empty();
                          },
                          [](const Font&) -> bool { ThrowTypeMismatch(); },
                      },
        m_value);
}

int16_t Variant::ToInt16() const
{
    return ToInteger<int16_t>(m_value);
}

int32_t Variant::ToInt32() const
{
    return ToInteger<int32_t>(m_value);
}

float Variant::ToFloat() const
{
    const double value = ToDouble();
    if (std::isfinite(value) && std::fabs(value) > double(std::numeric_limits<float>::max()))
        ThrowOverflow();
    return float(value);
}

double Variant::ToDouble() const
{
    return std::visit(Overloaded {
                          [](std::monostate) { return 0.0; },
                          [](bool v) { return v ? -1.0 : 0.0; },
                          [](int16_t v) { return double(v); },
                          [](int32_t v) { return double(v); },
                          [](float v) { return double(v); },
                          [](double v) { return v; },
                          [](Currency v) { return v.ToDouble(); },
                          [](OleDate v) { return v.Serial(); },
                          [](const String& v) { return ParseNumber(v).ToDouble(); },
                          [](const Font&) -> double { ThrowTypeMismatch(); },
                      },
        m_value);
}

Currency Variant::ToCurrency() const
{
    return std::visit(Overloaded {
                          [](std::monostate) { return Currency(); },
                          [](bool v) { return Currency::FromInt(v ? -1 : 0); },
                          [](int16_t v) { return Currency::FromInt(v); },
                          [](int32_t v) { return Currency::FromInt(v); },
                          [](float v) { return Currency::FromDouble(v); },
                          [](double v) { return Currency::FromDouble(v); },
                          [](Currency v) { return v; },
                          [](OleDate v) { return Currency::FromDouble(v.Serial()); },
                          [](const String& v) { return ParseNumber(v).ToCurrency(); },
                          [](const Font&) -> Currency { ThrowTypeMismatch(); },
                      },
        m_value);
}

String Variant::ToString() const
{
    return std::visit(Overloaded {
                          [](std::monostate) { return String(); },
                          [](bool v) { return String(v ? u"True" : u"False"); },
                          [](int16_t v) { return FromUtf8(std::to_string(v)); },
                          [](int32_t v) { return FromUtf8(std::to_string(v)); },
                          [](float v) { return FormatReal(v, 7); },
                          [](double v) { return FormatReal(v, 15); },
                          [](Currency v) { return FormatCurrency(v); },
                          [](OleDate v) { return FormatDate(v); },
                          [](const String& v) { return v; },
                          [](const Font&) -> String { ThrowTypeMismatch(); },
                      },
        m_value);
}

Font Variant::ToFont() const
{
    if (const auto* font = std::get_if<Font>(&m_value)) {
        Font kept = *font;
        kept.size = KeptFontSize(font->size);
        return kept;
    }
    ThrowTypeMismatch();
}

} // namespace tolva
