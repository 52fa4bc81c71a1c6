#include "core/format/date_picture.h"
#include "core/format/en_us_locale.h"
#include <algorithm>
#include <cmath>
#include <string>

namespace tolva {

namespace {

// The length of the run of one letter from index i, counted up to the longest field (dddddd).
size_t RunLength(const PictureSection& section, size_t i)
{
    const char16_t letter = AsciiLower(section[i].symbol);
    size_t end = i;
    while (end < section.size() && end - i < 6 && !section[end].IsLiteral() && AsciiLower(section[end].symbol) == letter)
        ++end;
    return end - i;
}

String Number(int value, int width)
{
    const std::string digits = std::to_string(value);
    String text(size_t(std::max(width - int(digits.size()), 0)), u'0');
    text.append(digits.begin(), digits.end());
    return text;
}

int DayOfYear(OleDate date)
{
    return int(std::trunc(date.Serial()) - OleDate::FromYmd(date.Year(), 1, 1).Serial()) + 1;
}

String Picture(StringView pattern, OleDate date)
{
    return DatePicture(ReadPictureSections(pattern).front()).Format(date);
}

} // namespace

DatePicture::DatePicture(const PictureSection& section)
{
    bool afterHour = false;
    for (size_t i = 0; i < section.size();) {
        const PictureItem& item = section[i];
        if (item.IsLiteral()) {
            m_tokens.push_back({ Field::Literal, item.literal });
            ++i;
            continue;
        }
        const char16_t letter = AsciiLower(item.symbol);
        const bool upper = letter != item.symbol;
        size_t run = RunLength(section, i);
        Field field = Field::Literal;
        size_t used = 1;
        if (letter == u'a' && SpellsAt(section, i, u"am/pm")) {
            field = Field::AmPm, used = 5;
        } else if (letter == u'a' && SpellsAt(section, i, u"ampm")) {
            field = Field::LocaleAmPm, used = 4;
        } else if (letter == u'a' && SpellsAt(section, i, u"a/p")) {
            field = Field::AP, used = 3;
        } else if (letter == u'd') {
            constexpr Field days[] = { Field::Day, Field::Day2, Field::DayAbbreviation, Field::DayName,
                Field::ShortDate, Field::LongDate };
            used = std::min<size_t>(run, 6);
            field = days[used - 1];
        } else if (letter == u'w') {
            used = std::min<size_t>(run, 2);
            field = used == 1 ? Field::Weekday : Field::Week;
        } else if (letter == u'm') {
            used = std::min<size_t>(run, 4);
            constexpr Field months[] = { Field::Month, Field::Month2, Field::MonthAbbreviation, Field::MonthName };
            field = months[used - 1];
            if (afterHour && used <= 2)
                field = used == 1 ? Field::Minute : Field::Minute2;
        } else if (letter == u'n') {
            used = std::min<size_t>(run, 2);
            field = used == 1 ? Field::Minute : Field::Minute2;
        } else if (letter == u'q') {
            field = Field::Quarter;
        } else if (letter == u'y') {
            used = run >= 4 ? 4 : run >= 2 ? 2 : 1;
            field = used == 4 ? Field::Year4 : used == 2 ? Field::Year2 : Field::DayOfYear;
        } else if (letter == u'h') {
            used = std::min<size_t>(run, 2);
            field = used == 1 ? Field::Hour : Field::Hour2;
        } else if (letter == u's') {
            used = std::min<size_t>(run, 2);
            field = used == 1 ? Field::Second : Field::Second2;
        } else if (letter == u'c') {
            field = Field::GeneralDate;
        } else if (letter == u't' && run >= 5) {
            field = Field::LongTime, used = 5;
        }
        if (field == Field::Literal) {
            String text(1, item.symbol);
            if (item.symbol == u'/')
                text = String(1, en_us::DateSeparator);
            else if (item.symbol == u':')
                text = String(1, en_us::TimeSeparator);
            m_tokens.push_back({ Field::Literal, text });
        } else {
            m_tokens.push_back({ field, {}, upper });
            afterHour = field == Field::Hour || field == Field::Hour2;
            m_twelveHour = m_twelveHour || field == Field::AmPm || field == Field::AP || field == Field::LocaleAmPm;
        }
        i += used;
    }
}

String DatePicture::Format(OleDate date) const
{
    String out;
    for (const Token& token : m_tokens) {
        const int hour = date.Hour();
        const int shownHour = m_twelveHour ? (hour % 12 == 0 ? 12 : hour % 12) : hour;
        const bool pm = hour >= 12;
        switch (token.field) {
        case Field::Literal: out += token.text; break;
        case Field::Day: out += Number(date.Day(), 1); break;
        case Field::Day2: out += Number(date.Day(), 2); break;
        case Field::DayAbbreviation: out += en_us::DayAbbreviation(date.Weekday()); break;
        case Field::DayName: out += en_us::DayName(date.Weekday()); break;
        case Field::ShortDate: out += Picture(en_us::ShortDate, date); break;
        case Field::LongDate: out += Picture(en_us::LongDate, date); break;
        case Field::Weekday: out += Number(date.Weekday(), 1); break;
        case Field::Week: {
            const int firstWeekday = OleDate::FromYmd(date.Year(), 1, 1).Weekday();
            out += Number((DayOfYear(date) - 1 + firstWeekday - 1) / 7 + 1, 1);
            break;
        }
        case Field::Month: out += Number(date.Month(), 1); break;
        case Field::Month2: out += Number(date.Month(), 2); break;
        case Field::MonthAbbreviation: out += en_us::MonthAbbreviation(date.Month()); break;
        case Field::MonthName: out += en_us::MonthName(date.Month()); break;
        case Field::Minute: out += Number(date.Minute(), 1); break;
        case Field::Minute2: out += Number(date.Minute(), 2); break;
        case Field::Quarter: out += Number((date.Month() - 1) / 3 + 1, 1); break;
        case Field::DayOfYear: out += Number(DayOfYear(date), 1); break;
        case Field::Year2: out += Number(date.Year() % 100, 2); break;
        case Field::Year4: out += Number(date.Year(), 1); break;
        case Field::Hour: out += Number(shownHour, 1); break;
        case Field::Hour2: out += Number(shownHour, 2); break;
        case Field::Second: out += Number(date.Second(), 1); break;
        case Field::Second2: out += Number(date.Second(), 2); break;
        case Field::AmPm: out += token.upper ? (pm ? u"PM" : u"AM") : (pm ? u"pm" : u"am"); break;
        case Field::AP: out += token.upper ? (pm ? u"P" : u"A") : (pm ? u"p" : u"a"); break;
        case Field::LocaleAmPm: out += pm ? en_us::Pm : en_us::Am; break;
        case Field::GeneralDate: out += GeneralDate(date); break;
        case Field::LongTime: out += Picture(en_us::LongTime, date); break;
        }
    }
    return out;
}

String DatePicture::GeneralDate(OleDate date)
{
    const bool hasDay = std::trunc(date.Serial()) != 0;
    const bool hasTime = date.Hour() != 0 || date.Minute() != 0 || date.Second() != 0;
    String text;
    if (hasDay)
        text = Picture(en_us::ShortDate, date);
    if (hasTime || !hasDay) {
        if (hasDay)
            text += u' ';
        text += Picture(en_us::LongTime, date);
    }
    return text;
}

} // namespace tolva
