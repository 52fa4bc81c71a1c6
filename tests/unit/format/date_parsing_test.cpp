#include "core/format/date_parsing.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

struct DateCase {
    const char16_t* text;
    double serial; // -1e9: not a date
};

constexpr double NotADate = -1e9;

TEST(ParseLocaleDate, ReadsTheLocalesDatesAndTimes)
{
    const OleDate today = OleDate::FromYmd(2026, 5, 6);
    const double jan2 = 37623; // 2 January 2003
    const double pm304 = (15 * 60 + 4) / 1440.0;
    const DateCase cases[] = {
        { u"1/2/2003", jan2 },
        { u"  01/02/2003 ", jan2 },
        { u"1-2-03", jan2 },
        { u"1 2 2003", jan2 },
        { u"1,2,2003", jan2 },
        { u"2003-01-02", jan2 },
        { u"2003/1/2", jan2 },
        { u"13/1/2003", jan2 + 11 }, // the day first when the month cannot be one
        { u"1/13/2003", jan2 + 11 },
        { u"1/2/29", 47120 },
        { u"1/2/30", 10960 },
        { u"1/2/100", -657433 },
        { u"1/2", OleDate::FromYmd(2026, 1, 2).Serial() },
        { u"1/2003", jan2 - 1 },
        { u"January 2, 2003", jan2 },
        { u"Thursday, January 2, 2003", jan2 },
        { u"thu, jan 2 2003", jan2 },
        { u"2 January 2003", jan2 },
        { u"2-Jan-03", jan2 },
        { u"jan 2003", jan2 - 1 },
        { u"12/31/9999", 2958465 },
        { u"1/1/100", -657434 },
        { u"3:04 PM", pm304 },
        { u"3:04:05 pm", pm304 + 5 / 86400.0 },
        { u"15:04", pm304 },
        { u"3PM", 0.625 },
        { u"12:00 AM", 0 },
        { u"12:30 PM", 0.5 + 30 / 1440.0 },
        { u"13:00 PM", 13 / 24.0 },
        { u"12.5", 0.5 + 5 / 1440.0 },
        { u"1/2/2003 3:04 PM", jan2 + pm304 },
        { u"3:04 PM 1/2/2003", jan2 + pm304 },
        { u"", NotADate },
        { u"hello", NotADate },
        { u"5", NotADate },
        { u"Jan", NotADate },
        { u"Sept 2, 2003", NotADate },
        { u"2/30/2003", NotADate },
        { u"13/13/2003", NotADate },
        { u"13/2003", NotADate },
        { u"1/1/10000", NotADate },
        { u"1.2.2003", NotADate },
        { u"25:00", NotADate },
        { u"1/2/2003 3:60", NotADate },
        { u"1/2/2003 3", NotADate },
        { u"1/2/2003 x", NotADate },
        { u"3:04:05.5", NotADate },
        { u"$1,234.56", NotADate },
        { u"-1/2/2003", NotADate },
        { u"1//2/2003", NotADate },
        { u"1/2/2003-", NotADate },
        { u"Jan-2-2003", jan2 },
        { u"99999999999999999999/1/1", NotADate },
    };
    for (const DateCase& c : cases) {
        SCOPED_TRACE(ToUtf8(c.text));
        const auto date = ParseLocaleDate(c.text, today);
        ASSERT_EQ(date.has_value(), c.serial != NotADate);
        if (date) {
            EXPECT_NEAR(date->Serial(), c.serial, 1e-9);
        }
    }
}

} // namespace
} // namespace tolva
