#include "controls/command/tolva_command.h"
#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/window/window_surface.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/stub_site.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::win32 {
namespace {

using test::Pixels;

constexpr uint32_t Black = 0x000000;
constexpr uint32_t Grey = 0x808080;
constexpr uint32_t Normal = 0xCEDBDE;
constexpr uint32_t Hot = 0xDEE7EF;
constexpr uint32_t Pushed = 0xBDCBCE;

class EventLog final : public TolvaCommandEvents {
public:
    void Click() override { lines.push_back("Click"); }
    void DblClick() override { lines.push_back("DblClick"); }
    void KeyDown(int16_t& key, int16_t& shift) override { Add("KeyDown", key, shift); }
    void KeyPress(int16_t& key) override { lines.push_back("KeyPress " + std::to_string(key)); }
    void KeyUp(int16_t& key, int16_t& shift) override { Add("KeyUp", key, shift); }
    void MouseDown(int16_t& b, int16_t& s, float& x, float& y) override { Add("MouseDown", b, s, x, y); }
    void MouseMove(int16_t&, int16_t&, float&, float&) override { ++moves; }
    void MouseUp(int16_t& b, int16_t& s, float& x, float& y) override { Add("MouseUp", b, s, x, y); }

    std::vector<std::string> lines;
    int moves = 0;

private:
    void Add(const char* name, int a, int b) { lines.push_back(std::string(name) + " " + Text(a) + " " + Text(b)); }
    void Add(const char* name, int b, int s, float x, float y)
    {
        lines.push_back(std::string(name) + " " + Text(b) + " " + Text(s) + " " + Text(int(x)) + " " + Text(int(y)));
    }
    static std::string Text(int v) { return std::to_string(v); }
};

using Lines = std::vector<std::string>;

// A button of 100 x 30 pixels at (10, 20) of a form window.
class CommandOnWindow : public testing::Test {
protected:
    void SetUp() override
    {
        site.parent = &parentForm;
        parentForm.window = form.Get();
        SetForegroundWindow(form.Get());
        command.SetEventListener(&events);
        command.InitProperties();
        surface.CreateWindowIn(form.Get(), RECT { 10, 20, 110, 50 });
        UpdateWindow(surface.Window());
    }

    Pixels Look() { return Pixels::OfWindow(surface.Window()); }
    void Mouse(UINT message, WPARAM keys, int x, int y)
    {
        SendMessageW(surface.Window(), message, keys, MAKELPARAM(x, y));
    }
    void Key(UINT message, WPARAM key) { SendMessageW(surface.Window(), message, key, 0); }

    test::TestWindow form { 300, 200 };
    test::StubParentForm parentForm;
    test::StubSite site;
    WindowSurface surface;
    TolvaCommand command { surface, site };
    EventLog events;
};

TEST_F(CommandOnWindow, TurnsHotUnderThePointerAndBackOnePixelPastTheEdge)
{
    Mouse(WM_MOUSEMOVE, 0, 50, 5);
    EXPECT_EQ(Look().At(2, 2), Hot);
    EXPECT_EQ(GetCapture(), surface.Window());
    Mouse(WM_MOUSEMOVE, 0, 99, 29);
    EXPECT_EQ(Look().At(2, 2), Hot);
    Mouse(WM_MOUSEMOVE, 0, 100, 29);
    EXPECT_EQ(Look().At(2, 2), Normal);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(CommandOnWindow, ShowsThePushedLookWhileTheLeftButtonIsDown)
{
    Mouse(WM_MOUSEMOVE, 0, 50, 5);
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 50, 5);
    EXPECT_EQ(Look().At(2, 2), Pushed);
    Mouse(WM_LBUTTONUP, 0, 50, 5);
    EXPECT_EQ(Look().At(2, 2), Normal); // the release clears hot as well
}

// The focused look as a whole is compared with the headless picture; here the window's focus
// brings the marks and takes them away.
TEST_F(CommandOnWindow, TheWindowsFocusBringsAndTakesTheFocusMarks)
{
    surface.SetFocus();
    ASSERT_EQ(GetFocus(), surface.Window());
    EXPECT_EQ(Look().At(3, 3), Grey);
    EXPECT_TRUE(command.HasFocusFlag());
    SetFocus(form.Get());
    EXPECT_EQ(Look().At(1, 1), Normal);
    EXPECT_EQ(Look().At(3, 3), Normal);
    EXPECT_FALSE(command.HasFocusFlag());
}

TEST_F(CommandOnWindow, APressDraggedOffStillClicksOnRelease)
{
    Mouse(WM_MOUSEMOVE, 0, 50, 5);
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 50, 5);
    Mouse(WM_MOUSEMOVE, MK_LBUTTON, 150, 60);
    EXPECT_EQ(Look().At(2, 2), Pushed);
    EXPECT_EQ(GetCapture(), surface.Window()); // kept while the button is held
    Mouse(WM_LBUTTONUP, 0, 150, 60);
    EXPECT_EQ(events.lines, (Lines { "MouseDown 1 0 750 75", "Click", "MouseUp 1 0 2250 900" }));
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(CommandOnWindow, TheRightButtonNeitherPushesNorClicks)
{
    Mouse(WM_RBUTTONDOWN, MK_RBUTTON, 10, 10);
    EXPECT_NE(Look().At(2, 2), Pushed);
    Mouse(WM_RBUTTONUP, 0, 10, 10);
    EXPECT_EQ(events.lines, (Lines { "MouseDown 2 0 150 150", "MouseUp 2 0 150 150" }));
}

TEST_F(CommandOnWindow, EnterClicksOnceAndSpaceActsAsAPress)
{
    Key(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(events.lines, (Lines { "Click", "KeyDown 13 0" }));
    events.lines.clear();
    Key(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(Look().At(2, 2), Pushed);
    Key(WM_CHAR, ' ');
    Key(WM_KEYUP, VK_SPACE);
    EXPECT_EQ(events.lines,
        (Lines { "MouseDown 1 0 0 0", "KeyDown 32 0", "KeyPress 32", "Click", "MouseUp 1 0 0 0", "KeyUp 32 0" }));
}

TEST_F(CommandOnWindow, TheAccessKeyClicks)
{
    command.SetCaption(u"&Open");
    EXPECT_EQ(surface.AccessKeys(), u"O");
    EXPECT_TRUE(surface.HasAccessKey(u'o'));
    EXPECT_FALSE(surface.HasAccessKey(u'p'));
    surface.PressAccessKey(u'o');
    EXPECT_EQ(events.lines, (Lines { "Click", "MouseUp 1 0 0 0" }));
}

TEST_F(CommandOnWindow, ADisabledButtonHearsNothing)
{
    command.SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(surface.Window()));
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 50, 5);
    Mouse(WM_LBUTTONUP, 0, 50, 5);
    Key(WM_KEYDOWN, VK_RETURN);
    command.SetCaption(u"&Open");
    surface.PressAccessKey(u'O');
    EXPECT_TRUE(events.lines.empty());
    EXPECT_EQ(Look().At(2, 2), Normal);
}

TEST_F(CommandOnWindow, AMenuButtonPopsItsMenuUpAtItsBottomLeftCorner)
{
    parentForm.menus = { u"mnuFile" };
    site.extenderHeight = 450;
    command.SetStyle(tkStyle::tkMenu);
    command.SetMenuName(u"mnuFile");
    Mouse(WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    Mouse(WM_LBUTTONUP, 0, 5, 5);
    ASSERT_EQ(parentForm.popups.size(), 1u);
    EXPECT_EQ(parentForm.popups[0].menu, u"mnuFile");
    EXPECT_EQ(parentForm.popups[0].x, 10 * 15);
    EXPECT_EQ(parentForm.popups[0].y, 20 * 15 + 450);
}

TEST_F(CommandOnWindow, KeepsItsGdiObjectsFlatOverAThousandHoverRepaints)
{
    Mouse(WM_MOUSEMOVE, 0, 50, 5);
    Mouse(WM_MOUSEMOVE, 0, 150, 5);
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 1000; ++i)
        Mouse(WM_MOUSEMOVE, 0, i % 2 ? 50 : 150, 5);
    EXPECT_EQ(test::GdiObjectCount(), before);
    EXPECT_EQ(events.moves, 1002);
}

TEST_F(CommandOnWindow, DrawsWithoutAWindowToo)
{
    surface.DestroyWindow();
    EXPECT_EQ(surface.Window(), nullptr);
    GdiCanvas target(nullptr, 50, 15);
    surface.DrawTo(target.Dc(), RECT { 0, 0, 50, 15 }); // shrunk to half
    Pixels drawn = Pixels::OfDc(target.Dc(), 50, 15);
    EXPECT_EQ(drawn.At(0, 0), Black);
    EXPECT_EQ(drawn.At(25, 1), Normal);
    command.SetCaption(u"Still works");
    EXPECT_EQ(command.Caption(), u"Still works");
}

} // namespace
} // namespace tolva::win32
