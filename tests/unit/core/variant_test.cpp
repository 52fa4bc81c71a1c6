#include "core/variant.h"
#include "run_time_error_of.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tolva {
namespace {

TEST(Variant, NumbersBecomeIntegersRoundingHalfToEven)
{
    EXPECT_EQ(Variant(2.5).ToInt16(), 2);
    EXPECT_EQ(Variant(3.5).ToInt16(), 4);
    EXPECT_EQ(Variant(-2.5).ToInt32(), -2);
    EXPECT_EQ(Variant(2.5f).ToInt32(), 2);
    EXPECT_EQ(Variant(Currency::FromRaw(25000)).ToInt32(), 2);
    EXPECT_EQ(Variant(Currency::FromRaw(35000)).ToInt32(), 4);
    EXPECT_EQ(Variant(Currency::FromRaw(-35001)).ToInt16(), -4);
    EXPECT_EQ(Variant(OleDate(36526.75)).ToInt32(), 36527);
}

TEST(Variant, IntegersOutsideTheTargetOverflow)
{
    EXPECT_EQ(Variant(int32_t(32767)).ToInt16(), 32767);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(int32_t(40000)).ToInt16(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(32767.5).ToInt16(); }), RunTimeError::Overflow);
    EXPECT_EQ(Variant(-32768.5).ToInt16(), -32768);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(2147483647.5).ToInt32(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(std::nan("")).ToInt32(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(Currency::FromInt(40000)).ToInt16(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(1e39).ToFloat(); }), RunTimeError::Overflow);
}

TEST(Variant, TrueIsMinusOne)
{
    EXPECT_EQ(Variant(true).ToInt16(), -1);
    EXPECT_EQ(Variant(true).ToInt32(), -1);
    EXPECT_EQ(Variant(true).ToDouble(), -1.0);
    EXPECT_EQ(Variant(true).ToCurrency(), Currency::FromInt(-1));
    EXPECT_EQ(Variant(false).ToInt32(), 0);
    EXPECT_TRUE(Variant(int16_t(-1)).ToBool());
    EXPECT_TRUE(Variant(0.5).ToBool());
    EXPECT_FALSE(Variant(int32_t(0)).ToBool());
    EXPECT_TRUE(Variant(Currency::FromRaw(1)).ToBool());
}

TEST(Variant, ColoursTravelAsThe32BitPattern)
{
    const Variant colour(0x80000012u);
    EXPECT_TRUE(colour.Holds<int32_t>());
    EXPECT_EQ(colour.ToColor(), 0x80000012u);
    EXPECT_EQ(Variant(0xCEDBDE).ToColor(), 0xCEDBDEu);
}

TEST(Variant, StringsParseAsDecimalNumbers)
{
    EXPECT_EQ(Variant(u"  42 ").ToInt16(), 42);
    EXPECT_EQ(Variant(u"-12.5").ToInt32(), -12);
    EXPECT_EQ(Variant(u"1e3").ToInt32(), 1000);
    EXPECT_EQ(Variant(u"+.5").ToDouble(), 0.5);
    EXPECT_EQ(Variant(u"2.").ToDouble(), 2.0);
    EXPECT_EQ(Variant(u"1.5E-3").ToDouble(), 0.0015);
    EXPECT_EQ(Variant(u"1e-400").ToDouble(), 0.0);
    EXPECT_TRUE(Variant(u"7").ToBool());
    EXPECT_FALSE(Variant(u"0.000").ToBool());
}

TEST(Variant, TextThatIsNoNumberIsATypeMismatch)
{
    for (const char16_t* text :
        { u"", u"  ", u"abc", u"1,000", u"12abc", u"1e", u".", u"-", u"&H10", u"1.2.3", u"True" })
        EXPECT_EQ(RunTimeErrorOf([text] { Variant(text).ToInt32(); }), RunTimeError::TypeMismatch) << ToUtf8(text);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"1e400").ToDouble(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"99999").ToInt16(); }), RunTimeError::Overflow);
}

TEST(Variant, TrueAndFalseAreBooleanWordsInAnyCase)
{
    EXPECT_TRUE(Variant(u"True").ToBool());
    EXPECT_TRUE(Variant(u"TRUE").ToBool());
    EXPECT_FALSE(Variant(u"false").ToBool());
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"yes").ToBool(); }), RunTimeError::TypeMismatch);
}

TEST(Variant, StringsConvertToCurrencyExactly)
{
    EXPECT_EQ(Variant(u"922337203685477.5807").ToCurrency().Raw(), std::numeric_limits<int64_t>::max());
    EXPECT_EQ(Variant(u"-922337203685477.5808").ToCurrency().Raw(), std::numeric_limits<int64_t>::min());
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"922337203685477.5808").ToCurrency(); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"1e20").ToCurrency(); }), RunTimeError::Overflow);
    EXPECT_EQ(Variant(u"0.00005").ToCurrency().Raw(), 0);
    EXPECT_EQ(Variant(u"0.00015").ToCurrency().Raw(), 2);
    EXPECT_EQ(Variant(u"0.000050001").ToCurrency().Raw(), 1);
    EXPECT_EQ(Variant(u"1.23456").ToCurrency().Raw(), 12346);
    EXPECT_EQ(Variant(u"-12.5e-1").ToCurrency().Raw(), -12500);
    EXPECT_EQ(Variant(u"0.00000000001").ToCurrency().Raw(), 0);
    EXPECT_EQ(Variant(u"1.5e2").ToCurrency().Raw(), 1500000);
}

TEST(Variant, NumbersConvertToCurrencyWithRoundingAndRangeChecks)
{
    EXPECT_EQ(Variant(int32_t(7)).ToCurrency().Raw(), 70000);
    EXPECT_EQ(Variant(0.03125).ToCurrency().Raw(), 312);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(1e16).ToCurrency(); }), RunTimeError::Overflow);
}

TEST(Variant, ValuesBecomeTheLanguagesText)
{
    EXPECT_EQ(Variant().ToString(), u"");
    EXPECT_EQ(Variant(true).ToString(), u"True");
    EXPECT_EQ(Variant(false).ToString(), u"False");
    EXPECT_EQ(Variant(int16_t(-5)).ToString(), u"-5");
    EXPECT_EQ(Variant(int32_t(123456)).ToString(), u"123456");
    EXPECT_EQ(Variant(0.1).ToString(), u"0.1");
    EXPECT_EQ(Variant(0.1f).ToString(), u"0.1");
    EXPECT_EQ(Variant(1.0 / 3).ToString(), u"0.333333333333333");
    EXPECT_EQ(Variant(123456789012345.0).ToString(), u"123456789012345");
    EXPECT_EQ(Variant(1e15).ToString(), u"1E+15");
    EXPECT_EQ(Variant(1.5e-7).ToString(), u"1.5E-07");
    EXPECT_EQ(Variant(0.0001).ToString(), u"0.0001");
    EXPECT_EQ(Variant(-0.0).ToString(), u"0");
    EXPECT_EQ(Variant(Currency::FromRaw(15000)).ToString(), u"1.5");
    EXPECT_EQ(Variant(Currency::FromRaw(-1)).ToString(), u"-0.0001");
    EXPECT_EQ(Variant(Currency::FromInt(10)).ToString(), u"10");
    EXPECT_EQ(Variant(Currency::FromRaw(std::numeric_limits<int64_t>::min())).ToString(), u"-922337203685477.5808");
}

TEST(Variant, DatesBecomeUsShortDatesWithTheTimeWhenThereIsOne)
{
    EXPECT_EQ(Variant(OleDate(36526)).ToString(), u"1/1/2000");
    EXPECT_EQ(Variant(OleDate(36526.75)).ToString(), u"1/1/2000 6:00:00 PM");
    EXPECT_EQ(Variant(OleDate(36526 + 5.0 / 86400)).ToString(), u"1/1/2000 12:00:05 AM");
    EXPECT_EQ(Variant(OleDate(0.5)).ToString(), u"12:00:00 PM");
    EXPECT_EQ(Variant(OleDate(0)).ToString(), u"12:00:00 AM");
    EXPECT_EQ(Variant(OleDate(-1)).ToString(), u"12/29/1899");
    EXPECT_EQ(Variant(OleDate(36526)).ToDouble(), 36526.0);
}

TEST(Variant, FontsConvertOnlyToFonts)
{
    Font font;
    font.name = u"Tahoma";
    font.SetBold(true);
    EXPECT_EQ(Variant(font).ToFont(), font);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(int32_t(1)).ToFont(); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([] { Variant(u"Arial").ToFont(); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([&] { Variant(font).ToInt32(); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([&] { Variant(font).ToString(); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([&] { Variant(font).ToBool(); }), RunTimeError::TypeMismatch);
}

TEST(Variant, EmptyIsZeroFalseAndNoText)
{
    const Variant empty;
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(empty.ToInt32(), 0);
    EXPECT_EQ(empty.ToDouble(), 0.0);
    EXPECT_FALSE(empty.ToBool());
    EXPECT_EQ(empty.ToCurrency(), Currency());
}

} // namespace
} // namespace tolva
