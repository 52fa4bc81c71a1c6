// Both formatters under hostile input: long pictures, numbers at the ends of the double and
// currency ranges, long text. Each call answers or raises a run-time error; none may crash.
#include "core/format/portable_formatter.h"
#include "platform/win32/com/ole_formatter.h"
#include "tests/win32/format/corpus.h"
#include <gtest/gtest.h>
#include <limits>

namespace tolva::test {
namespace {

std::vector<String> HostilePictures()
{
    String quoted = u"\"" + String(9998, u'x') + u"\"";
    String longTimes, generalDates;
    for (int i = 0; i < 2000; ++i)
        longTimes += u"ttttt";
    return { String(10000, u'0'), String(10000, u'#') + u".00", String(10000, u'd'), longTimes, String(10000, u'c'),
        quoted, String(10000, u','), String(10000, u';'), String(10000, u'\\'), u"#,##0.00", u"0", u"Currency",
        u"Scientific", u"General Date", u"mm/dd/yyyy" };
}

std::vector<Variant> HostileValues()
{
    return { std::numeric_limits<double>::max(), -std::numeric_limits<double>::max(), 1e300, 1e99,
        std::numeric_limits<double>::denorm_min(), Currency::FromRaw(INT64_MAX), Currency::FromRaw(INT64_MIN),
        OleDate(2958465.99999), OleDate(-657434), String(1 << 20, u'7'), String(1 << 20, u'a'), u"1e308", u"1e400" };
}

TEST(HostileFormat, EveryCallAnswersOrRaisesAnError)
{
    PortableFormatter portable;
    win32::OleFormatter system;
    size_t answered = 0, refused = 0;
    for (const String& picture : HostilePictures()) {
        for (const Variant& value : HostileValues()) {
            for (Formatter* formatter : { static_cast<Formatter*>(&portable), static_cast<Formatter*>(&system) }) {
                const std::string outcome = Outcome([&] { return formatter->Format(value, picture); });
                (outcome.rfind("<error", 0) == 0 ? refused : answered)++;
            }
        }
    }
    EXPECT_GT(answered, 0u);
    EXPECT_GT(refused, 0u);
}

TEST(HostileFormat, TheDllRefusesResultsWineCannotHold)
{
    win32::OleFormatter system;
    EXPECT_EQ(Outcome([&] { return system.Format(1e300, u"0"); }), "<error 6>");
    EXPECT_EQ(Outcome([&] { return system.Format(u"1e400", u"0.00"); }), "<error 6>");
    EXPECT_EQ(Outcome([&] { return system.Format(OleDate(37623.6), String(1000, u'c')); }), "<error 6>");
    EXPECT_EQ(Outcome([&] { return system.Format(1e300, u"Scientific"); }), "1.00E+300");
    EXPECT_EQ(Outcome([&] { return system.Format(String(1 << 20, u'a'), u"0.00"); }), ToUtf8(String(1 << 20, u'a')));
    EXPECT_EQ(Outcome([&] { return system.Format(Currency::FromRaw(INT64_MAX), u"Currency"); }), "$922,337,203,685,477.58");
}

TEST(HostileFormat, CurrencyLimitsAreReadOrRefused)
{
    PortableFormatter portable;
    win32::OleFormatter system;
    for (Formatter* formatter : { static_cast<Formatter*>(&portable), static_cast<Formatter*>(&system) }) {
        EXPECT_EQ(Outcome([&] { return FromUtf8(std::to_string(formatter->TextToCurrency(u"922337203685477").Raw())); }),
            "9223372036854770000");
        EXPECT_EQ(Outcome([&] { return FromUtf8(std::to_string(formatter->TextToCurrency(u"1e16").Raw())); }), "<error 6>");
        EXPECT_EQ(Outcome([&] { return FromUtf8(std::to_string(formatter->TextToCurrency(String(100000, u'9')).Raw())); }),
            "<error 6>");
        EXPECT_FALSE(formatter->IsNumeric(u"1e400"));
        EXPECT_FALSE(formatter->IsDate(String(100000, u'1')));
    }
}

} // namespace
} // namespace tolva::test
