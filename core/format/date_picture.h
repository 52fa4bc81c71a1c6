#pragma once
#include "core/format/picture_lexer.h"
#include "core/ole_date.h"

namespace tolva {

// A date picture, read once: d to dddddd (day, 01, Sun, Sunday, short date, long date), w, ww
// (weekday, week of the year; weeks start on Sunday, the first holds 1 January), m to mmmm
// (month, or the minute right after an hour), q, y (day of the year), yy, yyyy, h, hh, n, nn,
// s, ss, AM/PM am/pm A/P a/p AMPM (which also make the hours run 1 to 12), c (general date),
// ttttt (long time), "/" and ":" as the locale's separators, literal text anywhere. Letters are
// read in either case.
class DatePicture {
public:
    explicit DatePicture(const PictureSection& section);

    String Format(OleDate date) const;

    // The general date: the short date unless the day is 0, then the long time unless the time
    // is midnight and there is a day.
    static String GeneralDate(OleDate date);

private:
    enum class Field {
        Literal, Day, Day2, DayAbbreviation, DayName, ShortDate, LongDate, Weekday, Week,
        Month, Month2, MonthAbbreviation, MonthName, Minute, Minute2, Quarter, DayOfYear, Year2, Year4,
        Hour, Hour2, Second, Second2, AmPm, AP, LocaleAmPm, GeneralDate, LongTime
    };
    struct Token {
        Field field;
        String text; // for literals
        bool upper = true; // for AM/PM and A/P
    };

    std::vector<Token> m_tokens;
    bool m_twelveHour = false;
};

} // namespace tolva
