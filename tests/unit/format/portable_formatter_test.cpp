#include "core/automation_error.h"
#include "core/child_site.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/core/run_time_error_of.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

struct FormatCase {
    Variant value;
    const char16_t* format;
    const char16_t* expected;
};

const OleDate Thursday = OleDate(37623.6); // 2 January 2003, 14:24

void ExpectFormats(std::initializer_list<FormatCase> cases)
{
    headless::TestSite site;
    for (const FormatCase& c : cases) {
        SCOPED_TRACE(ToUtf8(c.format) + " of " + ToUtf8(c.value.ToString()));
        EXPECT_EQ(ToUtf8(site.Formatting().Format(c.value, c.format)), ToUtf8(c.expected));
    }
}

TEST(PortableFormatter, NamedFormats)
{
    ExpectFormats({
        { 1234.5, u"", u"1234.5" },
        { -0.5, u"General Number", u"-0.5" },
        { 1e20, u"General Number", u"1E+20" },
        { Currency::FromRaw(INT64_MIN), u"General Number", u"-922337203685477.5808" },
        { 1234.5, u"Currency", u"$1,234.50" },
        { -1234.5, u"currency", u"($1,234.50)" },
        { -0.005, u"Currency", u"($0.01)" },
        { Currency::FromRaw(INT64_MAX), u"Currency", u"$922,337,203,685,477.58" },
        { -1234.5, u"Fixed", u"-1234.50" },
        { 1234567.891, u"Standard", u"1,234,567.89" },
        { 0.125, u"Percent", u"12.50%" },
        { -0.000123, u"Scientific", u"-1.23E-04" },
        { 0.0, u"Scientific", u"0.00E+00" },
        { 2.0, u"Yes/No", u"Yes" },
        { 0.0, u"True/False", u"False" },
        { -0.5, u"On/Off", u"On" },
        { u"12", u"Currency", u"$12.00" },
        { u"abc", u"Currency", u"abc" },
        { true, u"Currency", u"($1.00)" },
        { Thursday, u"General Date", u"1/2/2003 2:24:00 PM" },
        { OleDate(37623), u"General Date", u"1/2/2003" },
        { OleDate(-0.25), u"General Date", u"6:00:00 AM" },
        { Thursday, u"Long Date", u"Thursday, January 2, 2003" },
        { Thursday, u"Medium Date", u"02-Jan-03" },
        { Thursday, u"Short Date", u"1/2/2003" },
        { Thursday, u"Long Time", u"2:24:00 PM" },
        { Thursday, u"Medium Time", u"02:24 PM" },
        { Thursday, u"Short Time", u"14:24" },
        { u"1/2/2003", u"Long Date", u"Thursday, January 2, 2003" },
        { u"abc", u"Long Date", u"abc" },
    });
}

TEST(PortableFormatter, NumberPictures)
{
    ExpectFormats({
        { 2.5, u"0", u"3" },
        { 0.5, u"#", u"1" }, // rounding carries into an empty whole part
        { 0.5, u"#,##0", u"1" },
        { 1.005, u"0.00", u"1.01" }, // rounded from the 15 digits a double shows
        { -0.001, u"0.00", u"-0.00" }, // the sign is the value's, before rounding
        { -0.4, u"#", u"-" },
        { 0.0, u"#.##", u"." },
        { 1234.5, u"00000.000", u"01234.500" },
        { 1234567.0, u"#,##0", u"1,234,567" },
        { 123.0, u"0,000", u"0,123" },
        { 1234567.0, u"#,##0,", u"1,235" }, // a comma after the last placeholder divides by 1,000
        { 12345.0, u"00-00", u"123-45" },
        { 5551234567.0, u"(###) ###-####", u"(555) 123-4567" },
        { 1234567.0, u"0 0 0", u"12345 6 7" },
        { 1.0, u"0#", u"01" },
        { 1234.5678, u"0.##", u"1234.57" },
        { 123456.0, u"0.0##", u"123456.0" },
        { 1.5, u".0", u"1.5" },
        { -1234.5, u"$#,##0.00", u"$-1,234.50" },
        { -1234.5, u"$#,##0.00;($#,##0.00)", u"($1,234.50)" },
        { -1234.5, u"$#,##0.00;;", u"$-1,234.50" },
        { -5.0, u"0;0;", u"5" },
        { 0.0, u"0;-0;\"zero\"", u"zero" },
        { 0.001, u"0;-0;\"zero\"", u"0" },
        { -0.001, u"0;(0)", u"(0)" },
        { 0.5, u"0%", u"50%" },
        { 5.0, u"\\a0\\b\"x\"", u"a5bx" },
        { 1234.5, u"#,##0.00 \" units\"", u"1,234.50  units" },
        { 123.0, u"0.00E+00", u"1.23E+02" },
        { 123.0, u"0.00E-00", u"1.23E02" },
        { 0.00123, u"0.00e+0", u"1.23e-3" },
        { 9.99, u"0.0E+0", u"1.0E+1" },
        { 123.0, u"00.0E+0", u"12.3E+1" },
        { 0.5, u".0E+0", u".5E+0" },
        { 1e20, u"0", u"100000000000000000000" },
        { 12345678901234567890.0, u"#,##0", u"12,345,678,901,234,600,000" },
        { float(0.1f), u"0.0000000000", u"0.1000000000" },
        { Currency::FromRaw(INT64_MIN), u"#,##0.0000", u"-922,337,203,685,477.5808" },
        { int32_t(INT32_MIN), u"#,##0", u"-2,147,483,648" },
        { u"($5)", u"0.00", u"-5.00" },
        { u"abc", u"0.00", u"abc" },
        { Thursday, u"0.00", u"37623.60" }, // a date's number is its serial
    });
}

TEST(PortableFormatter, DatePictures)
{
    ExpectFormats({
        { Thursday, u"d dd ddd dddd", u"2 02 Thu Thursday" },
        { Thursday, u"m mm mmm mmmm", u"1 01 Jan January" },
        { Thursday, u"ddddd", u"1/2/2003" },
        { Thursday, u"dddddd ttttt", u"Thursday, January 2, 2003 2:24:00 PM" },
        { Thursday, u"c", u"1/2/2003 2:24:00 PM" },
        { Thursday, u"mm/dd/yyyy", u"01/02/2003" },
        { Thursday, u"DD/MM/YYYY HH:NN:SS", u"02/01/2003 14:24:00" },
        { Thursday, u"yy-mm-dd yyy", u"03-01-02 032" },
        { Thursday, u"h:m:s hh:mm:ss", u"14:24:0 14:24:00" },
        { Thursday, u"m/d/yy h:mm", u"1/2/03 14:24" },
        { Thursday, u"hh:mm AM/PM", u"02:24 PM" },
        { Thursday, u"hh:mm am/pm", u"02:24 pm" },
        { Thursday, u"h A/P a/p", u"2 P p" },
        { OleDate(37623), u"hh:mm AMPM", u"12:00 AM" },
        { OleDate(37623.5), u"h AM/PM", u"12 PM" },
        { Thursday, u"w ww q y", u"5 1 1 2" },
        { OleDate(38352.5), u"w ww y", u"6 53 366" },
        { Thursday, u"\"Date: \"mm/dd \\d", u"Date: 01/02 d" },
        { Thursday, u"hhh tt", u"1414 tt" },
        { Thursday, u"hh:mm:ss.00", u"14:24:00.00" },
        { OleDate(-1.25), u"yyyy-mm-dd hh:nn", u"1899-12-29 06:00" },
        { OleDate(-657434), u"General Date", u"1/1/100" },
        { 37623.6, u"mm/dd/yyyy", u"01/02/2003" },
        { u"2003-01-02", u"dd/mm/yyyy", u"02/01/2003" },
        { u"hello", u"dd/mm/yyyy", u"hello" },
        { u"37623", u"yyyy", u"2003" },
    });
}

TEST(PortableFormatter, RefusesWhatItCannotFormat)
{
    PortableFormatter formatter;
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.Format(2958466.0, u"General Date"); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.Format(-657435.0, u"yyyy"); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.Format(u"1e400", u"0"); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.Format(u"abc", u"@@@"); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.Format(Variant(), u"0"); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(formatter.Format(Variant(), u""), u"");
}

TEST(PortableFormatter, HostileInputIsAnErrorOrAResult)
{
    PortableFormatter formatter;
    const String longPicture(10000, u'0');
    EXPECT_EQ(formatter.Format(5.0, longPicture), String(9999, u'0') + u"5");
    EXPECT_EQ(formatter.Format(1.7976931348623157e308, u"#,##0.00").size(), 309u + 102u + 3u);
    EXPECT_EQ(formatter.Format(4.9e-324, u"Scientific"), u"4.94E-324");
    for (const String& picture : { String(10000, u','), String(10000, u'd'), String(10000, u'\\'), String(10000, u'"'),
             String(10000, u';'), String(10000, u'E'), String(5000, u'E') + String(5000, u'+') }) {
        for (const Variant& value : { Variant(1e300), Variant(Thursday), Variant(Currency::FromRaw(INT64_MIN)) }) {
            try {
                formatter.Format(value, picture);
            } catch (const AutomationError&) {
            }
        }
    }
}

TEST(PortableFormatter, ReadsAmountsAndNumbers)
{
    PortableFormatter formatter;
    EXPECT_EQ(formatter.TextToCurrency(u"($1,234.56785)"), Currency::FromRaw(-12345679)); // half away from zero
    EXPECT_EQ(formatter.TextToCurrency(u"922,337,203,685,477.5807"), Currency::FromRaw(INT64_MAX));
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.TextToCurrency(u"922337203685477.5808"); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.TextToCurrency(u"12 apples"); }), RunTimeError::TypeMismatch);
    EXPECT_TRUE(formatter.IsNumeric(u" -1,234.5e2 "));
    EXPECT_FALSE(formatter.IsNumeric(u"1e400")); // beyond a double
    EXPECT_FALSE(formatter.IsNumeric(u""));
}

TEST(PortableFormatter, ReadsDatesInTheTodaysYearWhenNoneIsGiven)
{
    PortableFormatter formatter;
    formatter.FixToday(OleDate::FromYmd(2001, 2, 3));
    EXPECT_EQ(formatter.Today(), OleDate::FromYmd(2001, 2, 3));
    EXPECT_EQ(formatter.TextToDate(u"1/2"), OleDate::FromYmd(2001, 1, 2));
    EXPECT_EQ(formatter.TextToDate(u"January 2"), OleDate::FromYmd(2001, 1, 2));
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.TextToDate(u"Sept 2"); }), RunTimeError::TypeMismatch);
    EXPECT_FALSE(formatter.IsDate(u"2/30/2003"));
}

TEST(PortableFormatter, TodayIsTheClocksDateUnlessFixed)
{
    PortableFormatter formatter;
    const OleDate today = formatter.Today();
    EXPECT_EQ(today.Serial(), double(int64_t(today.Serial())));
    EXPECT_GE(today.Year(), 2024);
}

TEST(PortableFormatter, AnEmbeddedControlFormatsThroughItsContainer)
{
    headless::WindowTree tree;
    headless::HeadlessSurface container(tree);
    const std::unique_ptr<Surface> child = container.CreateChild();
    headless::TestSite outer;
    ChildSite site(outer, *child, u"txt");
    EXPECT_EQ(&site.Formatting(), &outer.formatter);
    EXPECT_EQ(site.Formatting().Today(), headless::TestSite::Today());
}

} // namespace
} // namespace tolva
