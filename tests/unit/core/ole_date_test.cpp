#include "core/ole_date.h"
#include "run_time_error_of.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

struct Ymd {
    int year, month, day;
    bool operator==(const Ymd&) const = default;
};

Ymd PartsOf(double serial)
{
    const OleDate date(serial);
    return { date.Year(), date.Month(), date.Day() };
}

TEST(OleDate, CountsDaysFromTheThirtiethOfDecember1899)
{
    EXPECT_EQ(OleDate::FromYmd(1899, 12, 30).Serial(), 0);
    EXPECT_EQ(OleDate::FromYmd(1899, 12, 31).Serial(), 1);
    EXPECT_EQ(OleDate::FromYmd(1900, 1, 1).Serial(), 2);
    // 1900 is no leap year: no 29 February between these two.
    EXPECT_EQ(OleDate::FromYmd(1900, 2, 28).Serial(), 60);
    EXPECT_EQ(OleDate::FromYmd(1900, 3, 1).Serial(), 61);
    EXPECT_EQ(OleDate::FromYmd(2000, 1, 1).Serial(), 36526);
    EXPECT_EQ(OleDate::FromYmd(2000, 2, 29).Serial(), 36585);
    EXPECT_EQ(OleDate::FromYmd(2024, 2, 29).Serial(), 45351);
}

TEST(OleDate, RoundTripsEveryDayAcrossLeapYearsAndTheEpoch)
{
    for (int serial = -800; serial <= 80000; ++serial) {
        const Ymd parts = PartsOf(serial);
        ASSERT_EQ(OleDate::FromYmd(parts.year, parts.month, parts.day).Serial(), serial) << serial;
    }
    EXPECT_EQ(PartsOf(-1), (Ymd { 1899, 12, 29 }));
    EXPECT_EQ(PartsOf(1), (Ymd { 1899, 12, 31 }));
    EXPECT_EQ(PartsOf(36585), (Ymd { 2000, 2, 29 }));
    EXPECT_EQ(PartsOf(36586), (Ymd { 2000, 3, 1 }));
    EXPECT_EQ(PartsOf(1521), (Ymd { 1904, 2, 29 }));
}

TEST(OleDate, ANegativeSerialCountsDaysBackAndKeepsItsFractionAsTimeOfDay)
{
    const OleDate before(-1.25);
    EXPECT_EQ(PartsOf(-1.25), (Ymd { 1899, 12, 29 }));
    EXPECT_EQ(before.Hour(), 6);
    EXPECT_EQ(PartsOf(-0.5), (Ymd { 1899, 12, 30 }));
    EXPECT_EQ(OleDate(-0.5).Hour(), 12);
    EXPECT_EQ(PartsOf(-2.75), (Ymd { 1899, 12, 28 }));
    EXPECT_EQ(OleDate(-2.75).Hour(), 18);
}

TEST(OleDate, TimeOfDayRoundsToTheSecondAndCarriesIntoTheNextDay)
{
    const OleDate afternoon(36526 + (15 * 3600 + 4 * 60 + 5) / 86400.0);
    EXPECT_EQ(afternoon.Hour(), 15);
    EXPECT_EQ(afternoon.Minute(), 4);
    EXPECT_EQ(afternoon.Second(), 5);
    const double almostMidnight = 36526 + (86400 - 0.4) / 86400.0;
    EXPECT_EQ(PartsOf(almostMidnight), (Ymd { 2000, 1, 2 }));
    EXPECT_EQ(OleDate(almostMidnight).Hour(), 0);
}

TEST(OleDate, WeekdaysRunFromSundayToSaturday)
{
    EXPECT_EQ(OleDate(0).Weekday(), 7); // Saturday 30 Dec 1899
    EXPECT_EQ(OleDate(1).Weekday(), 1); // Sunday
    EXPECT_EQ(OleDate(-1).Weekday(), 6); // Friday
    EXPECT_EQ(OleDate::FromYmd(2024, 1, 1).Weekday(), 2); // Monday
    EXPECT_EQ(OleDate::FromYmd(2000, 2, 29).Weekday(), 3); // Tuesday
}

TEST(OleDate, MonthsAndDaysOutsideTheirRangeCarryOver)
{
    EXPECT_EQ(OleDate::FromYmd(2023, 13, 1), OleDate::FromYmd(2024, 1, 1));
    EXPECT_EQ(OleDate::FromYmd(2024, 3, 0), OleDate::FromYmd(2024, 2, 29));
    EXPECT_EQ(OleDate::FromYmd(2024, 0, 15), OleDate::FromYmd(2023, 12, 15));
    EXPECT_EQ(OleDate::FromYmd(2023, 2, 31), OleDate::FromYmd(2023, 3, 3));
    EXPECT_EQ(OleDate::FromYmd(2024, -11, 1), OleDate::FromYmd(2023, 1, 1));
}

TEST(OleDate, OnlyYears100To9999AreDates)
{
    EXPECT_EQ(OleDate::FromYmd(100, 1, 1).Serial(), -657434);
    EXPECT_EQ(OleDate::FromYmd(9999, 12, 31).Serial(), 2958465);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate::FromYmd(99, 12, 31); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate::FromYmd(10000, 1, 1); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate::FromYmd(2000000000, 1, 1); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate::FromYmd(2000, 1, 2000000000); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate(3e6).Year(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { OleDate(1e300).Day(); }), RunTimeError::Overflow);
    EXPECT_EQ(PartsOf(-657434.5), (Ymd { 100, 1, 1 }));
}

} // namespace
} // namespace tolva
