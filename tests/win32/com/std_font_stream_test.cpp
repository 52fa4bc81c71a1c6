// The standard font's stream form, from which the shell learns what a font object was given.
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/std_font_stream.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>
#include <vector>

namespace tolva::win32::test {
namespace {

// Tahoma 9 pt, weight 700, charset 238, italic and strikethrough.
const std::vector<uint8_t> TahomaRecord
    = { 1, 238, 0, 2 | 8, 0xBC, 0x02, 0x90, 0x5F, 0x01, 0x00, 6, 'T', 'a', 'h', 'o', 'm', 'a' };

TEST(StdFontStream, ARecordGivesEveryAttribute)
{
    auto record = ParseStdFontStream(TahomaRecord);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->font.name, u"Tahoma");
    EXPECT_EQ(record->ansiName, "Tahoma");
    EXPECT_EQ(record->font.size, 9.0);
    EXPECT_EQ(record->font.weight, 700);
    EXPECT_EQ(record->font.charset, 238);
    EXPECT_TRUE(record->font.italic);
    EXPECT_FALSE(record->font.underline);
    EXPECT_TRUE(record->font.strikethrough);
}

TEST(StdFontStream, WhatIsNoRecordIsRefused)
{
    EXPECT_FALSE(ParseStdFontStream({}));
    std::vector<uint8_t> otherVersion = TahomaRecord;
    otherVersion[0] = 2;
    EXPECT_FALSE(ParseStdFontStream(otherVersion));
    for (size_t length = 0; length < TahomaRecord.size(); ++length)
        EXPECT_FALSE(ParseStdFontStream(std::span(TahomaRecord.data(), length))) << length;
    std::vector<uint8_t> longer = TahomaRecord;
    longer.push_back('!');
    EXPECT_EQ(ParseStdFontStream(longer)->font.name, u"Tahoma"); // what follows the name is not read
}

TEST(StdFontStream, IsWhatAStandardFontWritesOfItself)
{
    Font given;
    given.name = u"Tahoma";
    given.size = 9;
    given.weight = 700;
    given.charset = 238;
    given.italic = true;
    given.strikethrough = true;
    auto record = SaveStdFontStream(CreateStdFont(given).Get());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->font, given);
}

} // namespace
} // namespace tolva::win32::test
