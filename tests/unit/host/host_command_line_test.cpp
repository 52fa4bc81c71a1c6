#include "host/form/extender_keys.h"
#include "host/form/host_command_line.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

HostCommandLine Parse(std::vector<String> arguments)
{
    return HostCommandLine::Parse(arguments);
}

TEST(HostCommandLine, TakesTheFormAndEveryOptionInAnyOrder)
{
    HostCommandLine line = Parse({ u"/SAVE", u"out.frm", u"demo.frm", u"-log", u"events.txt", u"/play", u"steps.txt",
        u"/shots", u"shots", u"/Close", u"-Design" });
    EXPECT_EQ(line.formPath, u"demo.frm");
    EXPECT_EQ(line.savePath, u"out.frm");
    EXPECT_EQ(line.logPath, u"events.txt");
    EXPECT_EQ(line.playPath, u"steps.txt");
    EXPECT_EQ(line.shotsFolder, u"shots");
    EXPECT_TRUE(line.closeWhenShown);
    EXPECT_TRUE(line.design);
}

TEST(HostCommandLine, TakesAnAbsoluteUnixPathForTheForm)
{
    EXPECT_EQ(Parse({ u"/home/me/demo.frm" }).formPath, u"/home/me/demo.frm");
    EXPECT_FALSE(Parse({ u"demo.frm" }).closeWhenShown);
    EXPECT_FALSE(Parse({ u"demo.frm" }).design);
}

TEST(HostCommandLine, RefusesWhatItCannotFollow)
{
    EXPECT_THROW(Parse({}), CommandLineError);
    EXPECT_THROW(Parse({ u"/log", u"x.txt" }), CommandLineError);
    EXPECT_THROW(Parse({ u"a.frm", u"b.frm" }), CommandLineError);
    EXPECT_THROW(Parse({ u"a.frm", u"/save" }), CommandLineError);
    EXPECT_THROW(Parse({ u"a.frm", u"-verbose" }), CommandLineError);
    EXPECT_THROW(Parse({ u"a.frm", u"" }), CommandLineError);
}

TEST(ExtenderKeys, SeparateTheContainersKeysFromTheControls)
{
    EXPECT_TRUE(IsExtenderKey(u"left"));
    EXPECT_TRUE(IsExtenderKey(u"TabIndex"));
    EXPECT_TRUE(IsExtenderKey(u"Default"));
    EXPECT_FALSE(IsExtenderKey(u"Caption"));
    EXPECT_FALSE(IsExtenderKey(u"Enabled"));
    EXPECT_TRUE(IsDesignerKey(u"_ExtentX"));
    EXPECT_FALSE(IsDesignerKey(u"Width"));
}

} // namespace
} // namespace tolva
