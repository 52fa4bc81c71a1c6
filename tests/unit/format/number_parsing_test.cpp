#include "core/format/number_parsing.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

struct NumberCase {
    const char16_t* text;
    const char* digits; // nullptr: not a number
    int exponent = 0;
    bool negative = false;
};

TEST(ParseLocaleNumber, ReadsTheLocalesWaysOfWritingANumber)
{
    const NumberCase cases[] = {
        { u"0", "" },
        { u"  42 ", "42" },
        { u"-1,234.50", "12345", -1, true },
        { u"1,234,567", "1234567" },
        { u"$1,234.56", "123456", -2 },
        { u"($1,234.56)", "123456", -2, true },
        { u"(5)", "5", 0, true },
        { u"5-", "5", 0, true },
        { u"+5", "5" },
        { u"-$5", "5", 0, true },
        { u"5$", "5" },
        { u".5", "5", -1 },
        { u"5.", "5" },
        { u"1.5E3", "15", 2 },
        { u"1.5e-3", "15", -4 },
        { u"&HFF", "255" },
        { u"&o17", "15" },
        { u"-0", "" },
        { u"", nullptr },
        { u" ", nullptr },
        { u"abc", nullptr },
        { u"12 apples", nullptr },
        { u"1.2.3", nullptr },
        { u"(5", nullptr },
        { u"5)", nullptr },
        { u"--5", nullptr },
        { u"-5-", nullptr },
        { u"1E", nullptr },
        { u",5", nullptr },
        { u"&H", nullptr },
        { u"&HFFFFFFFFFFFFFFFFF", nullptr },
    };
    for (const NumberCase& c : cases) {
        SCOPED_TRACE(ToUtf8(c.text));
        const auto number = ParseLocaleNumber(c.text);
        ASSERT_EQ(number.has_value(), c.digits != nullptr);
        if (!number)
            continue;
        EXPECT_EQ(number->digits, c.digits);
        EXPECT_EQ(number->exponent, c.exponent);
        EXPECT_EQ(number->negative, c.negative);
    }
}

} // namespace
} // namespace tolva
