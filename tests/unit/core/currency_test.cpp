#include "core/currency.h"
#include "run_time_error_of.h"
#include <gtest/gtest.h>
#include <limits>

namespace tolva {
namespace {

constexpr int64_t MaxRaw = std::numeric_limits<int64_t>::max();
constexpr int64_t MinRaw = std::numeric_limits<int64_t>::min();

TEST(Currency, KeepsFourDecimalsOfWholeAmounts)
{
    EXPECT_EQ(Currency::FromInt(12).Raw(), 120000);
    EXPECT_EQ(Currency::FromInt(-3).Raw(), -30000);
    EXPECT_DOUBLE_EQ(Currency::FromRaw(12345).ToDouble(), 1.2345);
}

TEST(Currency, FromIntOverflowsBeyondTheRange)
{
    EXPECT_EQ(Currency::FromInt(922337203685477).Raw(), 9223372036854770000);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromInt(922337203685478); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromInt(-922337203685478); }), RunTimeError::Overflow);
}

TEST(Currency, FromDoubleRoundsHalfToEvenAtTheFourthDecimal)
{
    // 1/32 and 3/32 are exact in binary: 312.5 and 937.5 ten-thousandths.
    EXPECT_EQ(Currency::FromDouble(0.03125).Raw(), 312);
    EXPECT_EQ(Currency::FromDouble(0.09375).Raw(), 938);
    EXPECT_EQ(Currency::FromDouble(-0.03125).Raw(), -312);
    EXPECT_EQ(Currency::FromDouble(1.23456).Raw(), 12346);
    EXPECT_EQ(Currency::FromDouble(-1.23454).Raw(), -12345);
}

TEST(Currency, FromDoubleOverflowsOutsideTheRangeAndForNonNumbers)
{
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromDouble(1e15); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromDouble(-1e15); }), RunTimeError::Overflow);
    EXPECT_EQ(
        RunTimeErrorOf([] { Currency::FromDouble(std::numeric_limits<double>::quiet_NaN()); }), RunTimeError::Overflow);
    EXPECT_EQ(
        RunTimeErrorOf([] { Currency::FromDouble(std::numeric_limits<double>::infinity()); }), RunTimeError::Overflow);
    EXPECT_EQ(Currency::FromDouble(9e14).Raw(), 9000000000000000000);
}

TEST(Currency, AdditionAndSubtractionAreCheckedAtBothEnds)
{
    EXPECT_EQ((Currency::FromRaw(15000) + Currency::FromRaw(-2500)).Raw(), 12500);
    EXPECT_EQ((Currency::FromRaw(15000) - Currency::FromRaw(20000)).Raw(), -5000);
    EXPECT_EQ((Currency::FromRaw(MaxRaw - 1) + Currency::FromRaw(1)).Raw(), MaxRaw);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromRaw(MaxRaw) + Currency::FromRaw(1); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromRaw(MinRaw) - Currency::FromRaw(1); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { -Currency::FromRaw(MinRaw); }), RunTimeError::Overflow);
    EXPECT_EQ((-Currency::FromRaw(MaxRaw)).Raw(), MinRaw + 1);
}

TEST(Currency, MultiplicationRoundsHalfToEven)
{
    const Currency half = Currency::FromRaw(5000);
    EXPECT_EQ((Currency::FromRaw(1) * half).Raw(), 0); // 0.00005 -> 0.0000
    EXPECT_EQ((Currency::FromRaw(3) * half).Raw(), 2); // 0.00015 -> 0.0002
    EXPECT_EQ((Currency::FromRaw(-3) * half).Raw(), -2);
    EXPECT_EQ((Currency::FromInt(12) * Currency::FromRaw(12500)).Raw(), 150000); // 12 x 1.25
    EXPECT_EQ((Currency::FromInt(-2) * Currency::FromInt(-3)).Raw(), 60000);
}

TEST(Currency, MultiplicationUsesTheFullProductBeforeScaling)
{
    // The raw product exceeds 64 bits although the result fits.
    EXPECT_EQ((Currency::FromRaw(MaxRaw) * Currency::FromRaw(5000)).Raw(), 4611686018427387904);
    EXPECT_EQ((Currency::FromRaw(MinRaw) * Currency::FromInt(1)).Raw(), MinRaw);
    EXPECT_EQ(
        RunTimeErrorOf([] { Currency::FromInt(1000000000) * Currency::FromInt(1000000000); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromRaw(MinRaw) * Currency::FromInt(-1); }), RunTimeError::Overflow);
}

TEST(Currency, DivisionRoundsHalfToEven)
{
    EXPECT_EQ((Currency::FromInt(1) / Currency::FromInt(3)).Raw(), 3333);
    EXPECT_EQ((Currency::FromInt(2) / Currency::FromInt(3)).Raw(), 6667);
    EXPECT_EQ((Currency::FromRaw(1) / Currency::FromInt(2)).Raw(), 0);
    EXPECT_EQ((Currency::FromRaw(3) / Currency::FromInt(2)).Raw(), 2);
    EXPECT_EQ((Currency::FromRaw(-3) / Currency::FromInt(2)).Raw(), -2);
    EXPECT_EQ((Currency::FromInt(-10) / Currency::FromInt(4)).Raw(), -25000);
}

TEST(Currency, DivisionByZeroAndOverflowAreRunTimeErrors)
{
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromInt(1) / Currency(); }), RunTimeError::DivisionByZero);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromRaw(MaxRaw) / Currency::FromRaw(5000); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Currency::FromRaw(MinRaw) / Currency::FromInt(-1); }), RunTimeError::Overflow);
    EXPECT_EQ((Currency::FromRaw(MinRaw) / Currency::FromInt(1)).Raw(), MinRaw);
}

TEST(Currency, ComparesByAmount)
{
    EXPECT_LT(Currency::FromRaw(-1), Currency());
    EXPECT_GT(Currency::FromInt(2), Currency::FromRaw(19999));
    EXPECT_EQ(Currency::FromInt(1), Currency::FromRaw(10000));
}

} // namespace
} // namespace tolva
