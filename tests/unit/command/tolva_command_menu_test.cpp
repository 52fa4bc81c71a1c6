#include "command_test_fixture.h"
#include <functional>
#include <limits>

namespace tolva::testing {
namespace {

using Log = std::vector<std::string>;
using PopupMenuCall = headless::TestParentForm::PopupMenuCall;

// A menu button whose window sits 30 pixels right of and 50 pixels below its form's origin.
class CommandMenuTest : public CommandTest {
protected:
    CommandMenuTest()
    {
        form.screenOrigin = { 100, 200 };
        surface.SetScreenOrigin({ 130, 250 });
        form.AddMenu(u"mnuFile");
        button.SetStyle(tkStyle::tkMenu);
        button.SetMenuName(u"mnuFile");
    }

    void Click()
    {
        surface.MouseDown(1, 0, 300, 150);
        surface.MouseUp(1, 0, 300, 150);
    }
};

TEST_F(CommandMenuTest, OpensAtTheBottomLeftCornerInTwips)
{
    Click();
    // (130 - 100) * 15 = 450, (250 - 200) * 15 + the extender height 450 = 1200.
    EXPECT_EQ(form.popupMenus, (std::vector<PopupMenuCall> { { u"mnuFile", 450, 1200 } }));
}

TEST_F(CommandMenuTest, OpensBetweenClickAndMouseUp)
{
    std::vector<size_t> menusSeen;
    events.hook = [&](const std::string&) { menusSeen.push_back(form.popupMenus.size()); };
    Click();
    EXPECT_EQ(menusSeen, (std::vector<size_t> { 0, 0, 1 }));
}

TEST_F(CommandMenuTest, ButtonsLeftOfOrAboveTheFormGiveNegativeTwips)
{
    surface.SetScreenOrigin({ 90, 180 });
    site.extenderHeight = 300;
    Click();
    EXPECT_EQ(form.popupMenus, (std::vector<PopupMenuCall> { { u"mnuFile", -150, -300 + 300 } }));
}

TEST_F(CommandMenuTest, SpaceReleaseAndAccessKeyOpenItToo)
{
    surface.KeyDown(32, 0);
    surface.KeyUp(32, 0);
    button.SetCaption(u"&File");
    surface.AccessKey(u'F');
    EXPECT_EQ(form.popupMenus.size(), 2u);
}

// What keeps the menu shut; Click and MouseUp arrive all the same.

class CommandNoMenuTest;

struct NoMenuCase {
    const char* name;
    std::function<void(CommandNoMenuTest&)> arrange;
};

class CommandNoMenuTest : public CommandMenuTest, public ::testing::WithParamInterface<NoMenuCase> {
public:
    static std::vector<NoMenuCase> Cases()
    {
        return {
            { "NormalStyle", [](CommandNoMenuTest& t) { t.button.SetStyle(tkStyle::tkNormal); } },
            { "UnknownMenuName", [](CommandNoMenuTest& t) { t.button.SetMenuName(u"mnuNowhere"); } },
            { "EmptyMenuName", [](CommandNoMenuTest& t) { t.button.SetMenuName(u""); } },
            { "NoForm", [](CommandNoMenuTest& t) { t.site.parent = nullptr; } },
            { "FormLacksControls", [](CommandNoMenuTest& t) { t.form.lacksControls = true; } },
            { "FormLacksAWindow", [](CommandNoMenuTest& t) { t.form.lacksHwnd = true; } },
            { "FormLacksPopupMenu", [](CommandNoMenuTest& t) { t.form.lacksPopupMenu = true; } },
            // 200,000,000 pixels is a Long, but times 15 it is not.
            { "OffsetPast32BitsInTwips",
                [](CommandNoMenuTest& t) {
                    t.form.screenOrigin = { 0, 0 };
                    t.surface.SetScreenOrigin({ 200'000'000, 0 });
                } },
            { "DifferencePast32Bits",
                [](CommandNoMenuTest& t) {
                    t.form.screenOrigin = { 1, 0 };
                    t.surface.SetScreenOrigin({ std::numeric_limits<int32_t>::min(), 0 });
                } },
        };
    }
};

TEST_P(CommandNoMenuTest, ClicksWithoutAMenu)
{
    GetParam().arrange(*this);
    EXPECT_NO_THROW(Click());
    EXPECT_TRUE(form.popupMenus.empty());
    EXPECT_EQ(events.log, (Log { "MouseDown 1 0 300 150", "Click", "MouseUp 1 0 300 150" }));
}

INSTANTIATE_TEST_SUITE_P(Menu, CommandNoMenuTest, ::testing::ValuesIn(CommandNoMenuTest::Cases()),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CommandMenuTest, RightButtonOpensNoMenu)
{
    surface.MouseUp(2, 0, 300, 150);
    EXPECT_TRUE(form.popupMenus.empty());
}

TEST_F(CommandMenuTest, TheLargestOffsetThatFitsStillOpens)
{
    const int32_t pixels = std::numeric_limits<int32_t>::max() / 15;
    form.screenOrigin = { 0, 0 };
    surface.SetScreenOrigin({ pixels, 0 });
    site.extenderHeight = 0;
    Click();
    ASSERT_EQ(form.popupMenus.size(), 1u);
    EXPECT_EQ(form.popupMenus[0].x, double(pixels) * 15);
}

} // namespace
} // namespace tolva::testing
