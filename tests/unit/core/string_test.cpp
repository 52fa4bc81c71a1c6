#include "core/string.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(String, ConvertsBetweenUtf8AndUtf16BothWays)
{
    const String text = u"Caf\u00e9 \u20ac 1 \U0001F600";
    EXPECT_EQ(ToUtf8(text), "Caf\xc3\xa9 \xe2\x82\xac 1 \xf0\x9f\x98\x80");
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    EXPECT_EQ(FromUtf8(""), u"");
}

TEST(String, ReplacesMalformedInputInsteadOfFailing)
{
    EXPECT_EQ(FromUtf8("a\xff"
                       "b"),
        u"a\uFFFDb");
    EXPECT_EQ(FromUtf8("\xc3"), u"\uFFFD"); // truncated sequence
    EXPECT_EQ(FromUtf8("\xc0\xaf"), u"\uFFFD\uFFFD"); // overlong "/"
    EXPECT_EQ(FromUtf8("\xed\xa0\x80"), u"\uFFFD\uFFFD\uFFFD"); // an encoded surrogate
    EXPECT_EQ(ToUtf8(String(1, char16_t(0xD800)) + u"x"), "\xef\xbf\xbdx"); // lone surrogate
}

} // namespace
} // namespace tolva
