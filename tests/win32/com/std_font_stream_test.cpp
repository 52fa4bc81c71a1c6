// The standard font's stream form, from which the shell learns what a font object was given.
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/std_font_stream.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>
#include <vector>

namespace tolva::win32::test {
namespace {

// Tahoma 9 pt, weight 700, charset 238, italic and strikethrough, and its record.
Font Tahoma()
{
    Font font;
    font.name = u"Tahoma";
    font.size = 9;
    font.weight = 700;
    font.charset = 238;
    font.italic = true;
    font.strikethrough = true;
    return font;
}
const std::vector<uint8_t> TahomaRecord
    = { 1, 238, 0, 2 | 8, 0xBC, 0x02, 0x90, 0x5F, 0x01, 0x00, 6, 'T', 'a', 'h', 'o', 'm', 'a' };

TEST(StdFontStream, ARecordGivesEveryAttribute)
{
    auto record = ParseStdFontStream(TahomaRecord);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->font, Tahoma());
    EXPECT_EQ(record->ansiName, "Tahoma");
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
    auto record = SaveStdFontStream(CreateStdFont(Tahoma()).Get());
    ASSERT_TRUE(record);
    EXPECT_EQ(record->font, Tahoma());
    EXPECT_EQ(record->ansiName, "Tahoma");
}

} // namespace
} // namespace tolva::win32::test
