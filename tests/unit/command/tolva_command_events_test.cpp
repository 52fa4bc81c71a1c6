#include "command_test_fixture.h"

namespace tolva::testing {
namespace {

using Log = std::vector<std::string>;

class CommandEventsTest : public CommandTest {
protected:
    bool LooksPushed() const { return At(1, 1) == Pushed; }
};

// Mouse.

TEST_F(CommandEventsTest, LeftClickInsideRaisesDownClickThenUp)
{
    surface.MouseMove(0, 0, 300, 150);
    surface.MouseDown(1, 2, 300, 150);
    EXPECT_TRUE(button.Mouse().pushed);
    EXPECT_TRUE(LooksPushed());
    surface.Click(); // the surface's own click is not the button's
    surface.MouseUp(1, 2, 300, 150);
    EXPECT_EQ(events.log, (Log { "MouseMove 0 0 300 150", "MouseDown 1 2 300 150", "Click", "MouseUp 1 2 300 150" }));
    EXPECT_FALSE(button.Mouse().pushed);
    EXPECT_FALSE(button.Mouse().hot) << "the hot look ends with the release";
    EXPECT_EQ(At(1, 1), Normal);
}

TEST_F(CommandEventsTest, PressDraggedOutAndReleasedOutsideStillClicks)
{
    surface.MouseMove(0, 0, 300, 150);
    surface.MouseDown(1, 0, 300, 150);
    surface.MouseMove(1, 0, 2500, 900);
    EXPECT_FALSE(button.Mouse().hot);
    EXPECT_TRUE(LooksPushed()) << "the pushed look stays while the button is held";
    surface.MouseUp(1, 0, 2500, 900);
    EXPECT_EQ(events.log,
        (Log { "MouseMove 0 0 300 150", "MouseDown 1 0 300 150", "MouseMove 1 0 2500 900", "Click",
            "MouseUp 1 0 2500 900" }));
    EXPECT_EQ(At(1, 1), Normal);
}

TEST_F(CommandEventsTest, RightButtonNeverPushesNorClicks)
{
    surface.MouseDown(2, 0, 300, 150);
    EXPECT_FALSE(button.Mouse().pushed);
    EXPECT_EQ(At(1, 1), Normal);
    surface.MouseUp(2, 0, 300, 150);
    EXPECT_EQ(events.log, (Log { "MouseDown 2 0 300 150", "MouseUp 2 0 300 150" }));
}

// Where the inside ends is the shared hover test's; the button shows its result.
TEST_F(CommandEventsTest, HoverHoldsTheCaptureUntilThePointerLeaves)
{
    surface.MouseMove(0, 0, 1799, 449);
    EXPECT_TRUE(button.Mouse().hot);
    EXPECT_TRUE(surface.HasCapture());
    EXPECT_EQ(At(1, 1), Hot);

    surface.MouseMove(0, 0, 1800, 200); // the right edge is outside
    EXPECT_FALSE(button.Mouse().hot);
    EXPECT_FALSE(surface.HasCapture());
    EXPECT_EQ(At(1, 1), Normal);
}

TEST_F(CommandEventsTest, EveryMoveRepaints)
{
    const int presents = surface.PresentCount();
    surface.MouseMove(0, 0, 3000, 3000);
    surface.MouseMove(0, 0, 3100, 3000);
    EXPECT_EQ(surface.PresentCount(), presents + 2);
}

TEST_F(CommandEventsTest, DisabledButtonRaisesNothing)
{
    button.SetEnabled(false);
    surface.MouseDown(1, 0, 300, 150);
    surface.MouseUp(1, 0, 300, 150);
    surface.KeyDown(13, 0);
    EXPECT_TRUE(events.log.empty());
}

// Keyboard.

TEST_F(CommandEventsTest, EnterClicksAtOnceWithoutPushedLookOrMouseEvents)
{
    button.SetStyle(tkStyle::tkMenu);
    button.SetMenuName(u"mnuFile");
    form.AddMenu(u"mnuFile");
    surface.KeyDown(13, 0);
    EXPECT_FALSE(LooksPushed());
    surface.KeyUp(13, 0);
    EXPECT_EQ(events.log, (Log { "Click", "KeyDown 13 0", "KeyUp 13 0" }));
    EXPECT_TRUE(form.popupMenus.empty()) << "Enter shows no menu";
}

TEST_F(CommandEventsTest, SpacePressesAndReleasesLikeTheLeftButtonAtTheOrigin)
{
    surface.KeyDown(32, 0);
    EXPECT_TRUE(LooksPushed());
    EXPECT_EQ(events.log, (Log { "MouseDown 1 0 0 0", "KeyDown 32 0" }));
    events.log.clear();
    surface.KeyUp(32, 0);
    EXPECT_EQ(At(1, 1), Normal);
    EXPECT_EQ(events.log, (Log { "Click", "MouseUp 1 0 0 0", "KeyUp 32 0" }));
}

TEST_F(CommandEventsTest, SpaceHeldKeepsThePushedLookUntilTheNextMove)
{
    surface.KeyDown(32, 0);
    surface.MouseMove(0, 0, 5000, 5000);
    EXPECT_TRUE(LooksPushed());
    surface.MouseUp(1, 0, 5000, 5000);
    EXPECT_EQ(At(1, 1), Normal);
}

TEST_F(CommandEventsTest, DoubleClicksAndOtherKeysAreOnlyForwarded)
{
    surface.DblClick();
    surface.KeyDown(65, 1);
    surface.KeyPress(97);
    surface.KeyUp(65, 1);
    EXPECT_EQ(events.log, (Log { "DblClick", "KeyDown 65 1", "KeyPress 97", "KeyUp 65 1" }));
    EXPECT_FALSE(button.Mouse().pushed);
}

TEST_F(CommandEventsTest, KeyHandlersMayChangeTheKey)
{
    struct Swallow final : TolvaCommandEvents {
        void KeyDown(int16_t& k, int16_t&) override { k = 0; }
        void KeyPress(int16_t& k) override { k = 'B'; }
        void KeyUp(int16_t& k, int16_t&) override { k = 0; }
    } swallow;
    button.SetEventListener(&swallow);
    EXPECT_EQ(surface.KeyDown(65, 0), 0);
    EXPECT_EQ(surface.KeyPress('a'), 'B');
    EXPECT_EQ(surface.KeyUp(65, 0), 0);
}

TEST_F(CommandEventsTest, AccessKeyClicksAsALeftReleaseAtTheOrigin)
{
    button.SetCaption(u"&Save");
    EXPECT_TRUE(surface.AccessKey(u's'));
    EXPECT_EQ(events.log, (Log { "Click", "MouseUp 1 0 0 0" }));
    EXPECT_FALSE(surface.AccessKey(u'x'));
}

// Focus.

TEST_F(CommandEventsTest, FocusSetsAndClearsTheFlagAndRepaints)
{
    headless::HeadlessSurface other { tree };
    surface.SetFocus();
    EXPECT_TRUE(button.HasFocusFlag());
    EXPECT_EQ(At(1, 1), Black);
    other.SetFocus();
    EXPECT_FALSE(button.HasFocusFlag());
    EXPECT_EQ(At(1, 1), Normal);
}

// Handlers calling back into the button.

TEST_F(CommandEventsTest, HandlersMayChangeTheButtonWhileItsEventsAreRaised)
{
    events.hook = [this](const std::string& event) {
        if (event == "Click") {
            button.SetCaption(u"&Again");
            button.SetBackColor(0x0000FF);
            button.Refresh();
        } else if (event.starts_with("MouseDown")) {
            button.SetStyle(tkStyle::tkMenu);
        }
    };
    button.SetMenuName(u"mnuFile");
    form.AddMenu(u"mnuFile");
    surface.MouseDown(1, 0, 300, 150);
    surface.MouseUp(1, 0, 300, 150);
    EXPECT_EQ(events.log, (Log { "MouseDown 1 0 300 150", "Click", "MouseUp 1 0 300 150" }));
    EXPECT_EQ(surface.AccessKeys(), u"A");
    EXPECT_EQ(At(1, 1), 0x0000FFu);
    EXPECT_EQ(form.popupMenus.size(), 1u) << "the style set inside MouseDown counts at the release";
}

TEST_F(CommandEventsTest, AHandlerMayReplaceTheListener)
{
    CommandEventLog second;
    events.hook = [&](const std::string& event) {
        if (event == "Click")
            button.SetEventListener(&second);
    };
    surface.MouseUp(1, 0, 0, 0);
    EXPECT_EQ(events.log, (Log { "Click" }));
    EXPECT_EQ(second.log, (Log { "MouseUp 1 0 0 0" }));
    button.SetEventListener(nullptr);
    surface.MouseUp(1, 0, 0, 0); // nobody listens: nothing to fail
    EXPECT_EQ(second.log.size(), 1u);
}

} // namespace
} // namespace tolva::testing
