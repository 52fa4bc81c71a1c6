#include "core/format/portable_formatter.h"
#include "core/automation_error.h"
#include "core/format/date_parsing.h"
#include "core/format/date_picture.h"
#include "core/format/decimal_digits.h"
#include "core/format/named_formats.h"
#include "core/format/number_parsing.h"
#include "core/format/number_picture.h"
#include <cmath>
#include <ctime>

namespace tolva {

namespace {

// The largest number a double holds has 309 whole digits.
constexpr int32_t LargestMagnitude = 309;

// Serials of 1 January 100 and of the day after 31 December 9999.
constexpr double FirstSerial = -657434;
constexpr double EndSerial = 2958466;

// What the engine does not do is refused rather than answered wrongly.
[[noreturn]] void ThrowNotSupported(StringView what)
{
    throw AutomationError(int32_t(0x800A0000u + RunTimeError::InvalidProcedureCall), u"TolvaKit",
        u"The portable formatter does not handle " + String(what));
}

std::optional<DecimalText> NumberOfText(StringView text)
{
    auto number = ParseLocaleNumber(text);
    if (number && !number->digits.empty() && Magnitude(*number) > LargestMagnitude)
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return number;
}

// The value as the digits of a number; nothing for text that is not a number, which is then
// shown as it is.
std::optional<DecimalText> NumberOf(const Variant& value)
{
    const Variant::Storage& v = value.Value();
    if (const auto* d = std::get_if<double>(&v))
        return DigitsOfDouble(*d);
    if (const auto* f = std::get_if<float>(&v))
        return DigitsOfDouble(*f, 7);
    if (const auto* c = std::get_if<Currency>(&v))
        return DigitsOfCurrency(*c);
    if (const auto* i = std::get_if<int32_t>(&v))
        return DigitsOfInteger(*i);
    if (const auto* s = std::get_if<int16_t>(&v))
        return DigitsOfInteger(*s);
    if (const auto* b = std::get_if<bool>(&v))
        return DigitsOfInteger(*b ? -1 : 0);
    if (const auto* date = std::get_if<OleDate>(&v))
        return DigitsOfDouble(date->Serial());
    if (const auto* text = std::get_if<String>(&v))
        return NumberOfText(*text);
    if (value.IsEmpty())
        ThrowNotSupported(u"formatting an empty value with a format");
    throw AutomationError::RunTime(RunTimeError::TypeMismatch);
}

String FormatNumber(const DecimalText& number, const std::vector<PictureSection>& sections)
{
    // Negative numbers take the second section and zero the third, when they are there and
    // not empty; a negative number in the first section shows a minus sign.
    const PictureSection* section = &sections[0];
    bool minusSign = number.negative;
    if (number.negative && sections.size() > 1 && !sections[1].empty()) {
        section = &sections[1];
        minusSign = false;
    } else if (number.digits.empty() && sections.size() > 2 && !sections[2].empty()) {
        section = &sections[2];
    }
    DecimalText magnitude = number;
    magnitude.negative = false;
    return NumberPicture(*section).Format(magnitude, minusSign);
}

// The plain text of the number: numbers as they convert to text, Booleans, dates and text
// through their value as a double.
String GeneralNumber(const Variant& value, const DecimalText& number)
{
    if (value.Holds<double>() || value.Holds<float>() || value.Holds<Currency>() || value.Holds<int32_t>()
        || value.Holds<int16_t>())
        return value.ToString();
    return Variant(number.ToDouble()).ToString();
}

// The value as a date; nothing for text that is neither a date nor a number, which is then
// shown as it is. Numbers are serials; out of the calendar's range they are refused.
std::optional<OleDate> DateOf(const Variant& value, OleDate today)
{
    double serial = 0;
    if (const auto* date = std::get_if<OleDate>(&value.Value())) {
        serial = date->Serial();
    } else if (const auto* text = std::get_if<String>(&value.Value())) {
        if (const auto parsed = ParseLocaleDate(*text, today))
            return parsed;
        const auto number = NumberOfText(*text);
        if (!number)
            return std::nullopt;
        serial = number->ToDouble();
    } else {
        serial = NumberOf(value)->ToDouble();
    }
    if (!(serial > FirstSerial - 1 && serial < EndSerial))
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    return OleDate(serial);
}

} // namespace

String PortableFormatter::Format(const Variant& value, StringView format)
{
    if (format.empty())
        return value.ToString();

    if (const auto named = FindNamedFormat(format)) {
        if (IsDateFormat(*named)) {
            const auto date = DateOf(value, Today());
            if (!date)
                return value.ToString();
            if (*named == NamedFormat::GeneralDate)
                return DatePicture::GeneralDate(*date);
            return DatePicture(ReadPictureSections(PictureOf(*named)).front()).Format(*date);
        }
        const auto number = NumberOf(value);
        if (!number)
            return value.ToString();
        if (const auto words = BooleanWordsOf(*named))
            return String(number->digits.empty() ? words->zero : words->other);
        if (*named == NamedFormat::GeneralNumber)
            return GeneralNumber(value, *number);
        return FormatNumber(*number, ReadPictureSections(PictureOf(*named)));
    }

    const std::vector<PictureSection> sections = ReadPictureSections(format);
    switch (KindOfPicture(sections)) {
    case PictureKind::Number: {
        const auto number = NumberOf(value);
        return number ? FormatNumber(*number, sections) : value.ToString();
    }
    case PictureKind::Date: {
        const auto date = DateOf(value, Today());
        return date ? DatePicture(sections.front()).Format(*date) : value.ToString();
    }
    case PictureKind::Text:
        break;
    }
    ThrowNotSupported(u"text pictures (@ & < > !)");
}

Currency PortableFormatter::TextToCurrency(StringView text)
{
    const auto number = ParseLocaleNumber(text);
    if (!number)
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    // Digits past the fourth decimal round half away from zero.
    return RoundedToFraction(*number, 4).ToCurrency();
}

OleDate PortableFormatter::TextToDate(StringView text)
{
    const auto date = ParseLocaleDate(text, Today());
    if (!date)
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    return *date;
}

bool PortableFormatter::IsDate(StringView text)
{
    return ParseLocaleDate(text, Today()).has_value();
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
