#include "platform/headless/headless_surface.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::headless {
namespace {

// Records the notifications a surface delivers, as text.
class RecordingListener final : public SurfaceListener {
public:
    void OnPaint() override { log.push_back("Paint"); }
    void OnResize() override { log.push_back("Resize"); }
    void OnShow() override { log.push_back("Show"); }
    void OnAmbientChanged(StringView name) override { log.push_back("Ambient " + ToUtf8(name)); }
    void OnClick() override { log.push_back("Click"); }
    void OnDblClick() override { log.push_back("DblClick"); }
    void OnMouseDown(int16_t b, int16_t s, float x, float y) override
    {
        log.push_back(MouseEventText("Down", b, s, x, y));
    }
    void OnMouseMove(int16_t b, int16_t s, float x, float y) override
    {
        log.push_back(MouseEventText("Move", b, s, x, y));
    }
    void OnMouseUp(int16_t b, int16_t s, float x, float y) override { log.push_back(MouseEventText("Up", b, s, x, y)); }
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override
    {
        log.push_back("KeyDown " + std::to_string(keyCode) + " " + std::to_string(shift));
        keyCode = replacement;
    }
    void OnKeyPress(int16_t& keyAscii) override
    {
        log.push_back("KeyPress " + std::to_string(keyAscii));
        keyAscii = replacement;
    }
    void OnKeyUp(int16_t& keyCode, int16_t& shift) override
    {
        log.push_back("KeyUp " + std::to_string(keyCode) + " " + std::to_string(shift));
    }
    void OnAccessKeyPress(char16_t key) override { log.push_back("AccessKey " + ToUtf8(StringView(&key, 1))); }
    void OnGotFocus() override { log.push_back("GotFocus"); }
    void OnLostFocus() override { log.push_back("LostFocus"); }

    std::vector<std::string> log;
    int16_t replacement = 0;
};

class HeadlessSurfaceTest : public ::testing::Test {
protected:
    HeadlessSurfaceTest()
    {
        root.SetListener(&rootEvents);
        child->SetListener(&childEvents);
    }

    HeadlessSurface& Child() { return static_cast<HeadlessSurface&>(*child); }

    WindowTree tree;
    HeadlessSurface root { tree };
    std::unique_ptr<Surface> child = root.CreateChild();
    RecordingListener rootEvents, childEvents;
};

TEST_F(HeadlessSurfaceTest, ChildrenFormATree)
{
    EXPECT_EQ(Child().Parent(), &root);
    EXPECT_EQ(root.Children(), std::vector<HeadlessSurface*> { &Child() });
    child.reset();
    EXPECT_TRUE(root.Children().empty());
}

TEST_F(HeadlessSurfaceTest, MouseAndKeyInputReachTheListener)
{
    root.MouseDown(1, 2, 30, 45);
    root.MouseMove(0, 0, 60, 75);
    root.MouseUp(1, 0, 90, 105);
    root.Click();
    root.DblClick();
    root.KeyPress(65);
    root.KeyUp(32, 1);
    EXPECT_EQ(rootEvents.log,
        (std::vector<std::string> {
            "Down 1 2 30 45", "Move 0 0 60 75", "Up 1 0 90 105", "Click", "DblClick", "KeyPress 65", "KeyUp 32 1" }));
    EXPECT_TRUE(childEvents.log.empty());
}

TEST_F(HeadlessSurfaceTest, ADisabledSurfaceGetsNoMouseOrKeyInput)
{
    root.SetEnabled(false);
    root.MouseDown(1, 0, 0, 0);
    root.MouseMove(0, 0, 0, 0);
    root.MouseUp(1, 0, 0, 0);
    root.Click();
    root.DblClick();
    EXPECT_EQ(root.KeyDown(13, 0), 13);
    root.KeyPress(13);
    root.KeyUp(13, 0);
    // Nor does a child of a disabled surface.
    Child().MouseDown(1, 0, 0, 0);
    Child().SetAccessKeys(u"x");
    EXPECT_FALSE(Child().AccessKey(u'x'));
    EXPECT_TRUE(rootEvents.log.empty());
    EXPECT_TRUE(childEvents.log.empty());
    // Painting is no input.
    root.Paint();
    EXPECT_EQ(rootEvents.log, std::vector<std::string> { "Paint" });
}

TEST_F(HeadlessSurfaceTest, AccessKeysMatchIgnoringCase)
{
    root.SetAccessKeys(u"P");
    EXPECT_TRUE(root.AccessKey(u'p'));
    EXPECT_FALSE(root.AccessKey(u'q'));
    root.SetAccessKeys(u"");
    EXPECT_FALSE(root.AccessKey(u'p'));
    EXPECT_EQ(rootEvents.log, std::vector<std::string> { "AccessKey p" });
}

TEST_F(HeadlessSurfaceTest, FocusMovesWithNotificationsToBothSurfaces)
{
    root.SetFocus();
    EXPECT_TRUE(root.HasFocus());
    Child().SetFocus();
    EXPECT_FALSE(root.HasFocus());
    EXPECT_TRUE(Child().HasFocus());
    EXPECT_EQ(rootEvents.log, (std::vector<std::string> { "GotFocus", "LostFocus" }));
    EXPECT_EQ(childEvents.log, std::vector<std::string> { "GotFocus" });
    Child().SetFocus(); // already there: nothing
    tree.SetFocus(nullptr);
    EXPECT_EQ(childEvents.log, (std::vector<std::string> { "GotFocus", "LostFocus" }));
    EXPECT_EQ(tree.Focus(), nullptr);
    // A disabled surface cannot take the focus.
    Child().SetEnabled(false);
    Child().SetFocus();
    EXPECT_EQ(tree.Focus(), nullptr);
    EXPECT_EQ(childEvents.log.size(), 2u);
}

TEST_F(HeadlessSurfaceTest, CaptureIsHeldByOneSurfaceAndReleasedByAnyone)
{
    root.SetCapture();
    EXPECT_TRUE(root.HasCapture());
    Child().SetCapture();
    EXPECT_FALSE(root.HasCapture());
    EXPECT_TRUE(Child().HasCapture());
    root.ReleaseCapture();
    EXPECT_EQ(tree.Capture(), nullptr);
}

TEST_F(HeadlessSurfaceTest, ADestroyedSurfaceLeavesFocusAndCaptureSilently)
{
    Child().SetFocus();
    Child().SetCapture();
    child.reset();
    EXPECT_EQ(tree.Focus(), nullptr);
    EXPECT_EQ(tree.Capture(), nullptr);
    EXPECT_TRUE(rootEvents.log.empty());
}

TEST_F(HeadlessSurfaceTest, ScreenOriginAddsTheChildrensOffsetsInPixels)
{
    root.SetScreenOrigin({ 100, 200 });
    child->Move(150, 300, 600, 600);
    EXPECT_EQ(root.ScreenOrigin(), (PixelPoint { 100, 200 }));
    EXPECT_EQ(child->ScreenOrigin(), (PixelPoint { 110, 220 }));
    auto grandchild = child->CreateChild();
    grandchild->Move(45, 15, 30, 30);
    EXPECT_EQ(grandchild->ScreenOrigin(), (PixelPoint { 113, 221 }));
    child->SetBorderStyle(1); // the client area starts inside the 2-pixel edge
    EXPECT_EQ(grandchild->ScreenOrigin(), (PixelPoint { 115, 223 }));
}


TEST_F(HeadlessSurfaceTest, ResizeAlwaysNotifiesAndMoveOnlyWhenTheSizeChanges)
{
    root.Resize(300, 150);
    root.Resize(300, 150);
    root.Move(15, 15, 300, 150);
    root.Move(15, 15, 450, 150);
    EXPECT_EQ(rootEvents.log, (std::vector<std::string> { "Resize", "Resize", "Resize" }));
    EXPECT_EQ(root.Width(), 450);
    EXPECT_EQ(root.Left(), 15);
}

// Refresh paints before returning.
TEST_F(HeadlessSurfaceTest, HostRequestsReachTheListener)
{
    root.AmbientChanged(u"Font");
    root.Show();
    root.Refresh();
    root.Refresh();
    EXPECT_EQ(root.RefreshCount(), 2);
    EXPECT_EQ(rootEvents.log, (std::vector<std::string> { "Ambient Font", "Show", "Paint", "Paint" }));
}

TEST_F(HeadlessSurfaceTest, TheWindowImageShowsTheBackColourThenWhatWasPresented)
{
    root.SetBackColor(0x00FF00);
    root.Resize(150, 75); // 10 x 5 pixels
    EXPECT_EQ(root.WindowImage().Width(), 10);
    EXPECT_EQ(root.WindowImage().Height(), 5);
    EXPECT_EQ(root.WindowPixel(9, 4), 0x00FF00u);

    auto image = root.CreateCanvas(4, 4);
    image->FillRect(0, 0, 4, 4, 0x0000FF);
    root.Present(*image, 8, 3, 3, 2);
    EXPECT_EQ(root.PresentCount(), 1);
    EXPECT_EQ(root.WindowPixel(8, 3), 0x0000FFu);
    EXPECT_EQ(root.WindowPixel(9, 4), 0x0000FFu);
    EXPECT_EQ(root.WindowPixel(7, 3), 0x00FF00u);
    EXPECT_EQ(root.WindowPixel(8, 2), 0x00FF00u);

    // The image is the client area inside the border.
    root.SetBorderStyle(1);
    EXPECT_EQ(root.WindowImage().Width(), 6);
}

TEST_F(HeadlessSurfaceTest, TimersRunOnTheTreesClock)
{
    auto timer = root.CreateTimer();
    int ticks = 0;
    timer->SetTickHandler([&] { ++ticks; });
    timer->SetInterval(100);
    timer->SetEnabled(true);
    tree.Clock().Advance(250);
    EXPECT_EQ(ticks, 2);
}

} // namespace
} // namespace tolva::headless
