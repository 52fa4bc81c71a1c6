#include "host/form/form_syntax_error.h"
#include "host/form/play_script.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(PlayScript, ReadsEveryKindOfStep)
{
    const auto steps = ReadPlayScript("# hover and press\n"
                                      "move cmdOK 10 5\r\n"
                                      "\n"
                                      "press\n"
                                      "release right\n"
                                      "click cmdFile -1 20\n"
                                      "key Enter\n"
                                      "keydown Space\n"
                                      "keyup Space\n"
                                      "alt O\n"
                                      "type &Pay\n"
                                      "wait 250\n"
                                      "shot 01-hot_button\n"
                                      "close\n");
    ASSERT_EQ(steps.size(), 12u);
    EXPECT_EQ(steps[0].kind, PlayStep::Kind::Move);
    EXPECT_EQ(steps[0].target, u"cmdOK");
    EXPECT_EQ(steps[0].x, 10);
    EXPECT_EQ(steps[0].y, 5);
    EXPECT_EQ(steps[0].line, 2);
    EXPECT_FALSE(steps[1].rightButton);
    EXPECT_TRUE(steps[2].rightButton);
    EXPECT_EQ(steps[3].kind, PlayStep::Kind::Click);
    EXPECT_EQ(steps[3].x, -1);
    EXPECT_EQ(steps[4].target, u"Enter");
    EXPECT_EQ(steps[7].kind, PlayStep::Kind::Alt);
    EXPECT_EQ(steps[8].target, u"&Pay");
    EXPECT_EQ(steps[9].milliseconds, 250);
    EXPECT_EQ(steps[10].target, u"01-hot_button");
    EXPECT_EQ(steps[11].kind, PlayStep::Kind::Close);
}

TEST(PlayScript, RefusesBadLinesWithTheirNumber)
{
    const auto lineOf = [](const char* text) {
        try {
            ReadPlayScript(text);
        } catch (const FormSyntaxError& error) {
            return error.Line();
        }
        return 0;
    };
    EXPECT_EQ(lineOf("wait 10\njump 1\n"), 2);
    EXPECT_EQ(lineOf("move cmdOK 1\n"), 1);
    EXPECT_EQ(lineOf("move cmdOK x 1\n"), 1);
    EXPECT_EQ(lineOf("wait 999999\n"), 1);
    EXPECT_EQ(lineOf("press middle\n"), 1);
    EXPECT_EQ(lineOf("\n\nshot ../escape\n"), 3);
    EXPECT_EQ(lineOf("close now\n"), 1);
}

} // namespace
} // namespace tolva
