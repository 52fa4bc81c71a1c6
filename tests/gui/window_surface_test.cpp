#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/window/window_surface.h"
#include "tests/gui/gui_support.h"
#include <gtest/gtest.h>
#include <vector>

namespace tolva::win32 {
namespace {

using test::Pixels;

// Fills its surface with one colour on every paint and records what the surface told it.
class Painter final : public SurfaceListener {
public:
    Painter(Surface& surface, ColorRef color)
        : m_surface(surface)
        , m_color(color)
    {
        surface.SetListener(this);
    }
    ~Painter() override { m_surface.SetListener(nullptr); }

    void OnPaint() override
    {
        const int32_t width = int32_t(m_surface.ScaleWidth() / 15), height = int32_t(m_surface.ScaleHeight() / 15);
        auto canvas = m_surface.CreateCanvas(width, height);
        canvas->FillRect(0, 0, width, height, m_color);
        m_surface.Present(*canvas, 0, 0, width, height);
        ++paints;
    }
    void OnResize() override { ++resizes; }
    void OnMouseDown(int16_t button, int16_t, float x, float y) override { downs.push_back({ button, x, y }); }

    struct Down {
        int16_t button;
        float x, y;
    };
    int paints = 0;
    int resizes = 0;
    std::vector<Down> downs;

private:
    Surface& m_surface;
    ColorRef m_color;
};

class SurfaceOnWindow : public testing::Test {
protected:
    void SetUp() override { surface.CreateWindowIn(form.Get(), RECT { 10, 10, 110, 70 }); }

    test::TestWindow form { 200, 120 };
    WindowSurface surface;
    Painter painter { surface, 0x00FF00 };
};

TEST_F(SurfaceOnWindow, TakesTheWindowsRectangleAsItsGeometryInTwips)
{
    EXPECT_EQ(surface.Left(), 150);
    EXPECT_EQ(surface.Width(), 1500);
    EXPECT_EQ(surface.Height(), 900);
    EXPECT_EQ(surface.ScaleWidth(), 1500);
    const int resizes = painter.resizes;
    surface.Move(300, 300, 900, 450);
    const RECT rect = test::PlaceIn(surface.Window(), form.Get());
    EXPECT_EQ(rect.left, 20);
    EXPECT_EQ(rect.right - rect.left, 60);
    EXPECT_EQ(rect.bottom - rect.top, 30);
    EXPECT_EQ(painter.resizes, resizes + 1);
    surface.Move(300, 300, 900, 450);
    EXPECT_EQ(painter.resizes, resizes + 1); // the same size again is no resize
}

TEST_F(SurfaceOnWindow, AFixedSingleBorderIsASunkenEdgeOfTwoPixels)
{
    surface.SetBorderStyle(1);
    EXPECT_TRUE(GetWindowLongPtrW(surface.Window(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    RECT client;
    GetClientRect(surface.Window(), &client);
    EXPECT_EQ(client.right, 96);
    EXPECT_EQ(surface.ScaleWidth(), 96 * 15);
    surface.Refresh();
    EXPECT_EQ(Pixels::OfWindow(surface.Window()).At(95, 55), 0x00FF00u);
    surface.SetBorderStyle(0);
    GetClientRect(surface.Window(), &client);
    EXPECT_EQ(client.right, 100);
}

// The window's whole picture, its border included, as the screen shows it.
Pixels WholeWindow(HWND window)
{
    RECT outer;
    GetWindowRect(window, &outer);
    HDC dc = GetWindowDC(window);
    Pixels pixels = Pixels::OfDc(dc, outer.right - outer.left, outer.bottom - outer.top);
    ReleaseDC(window, dc);
    return pixels;
}

TEST_F(SurfaceOnWindow, AFlatFixedSingleBorderIsABlackFrameOfOnePixel)
{
    surface.SetAppearance(SurfaceAppearance::Flat);
    surface.SetBorderStyle(1);
    EXPECT_FALSE(GetWindowLongPtrW(surface.Window(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    RECT client;
    GetClientRect(surface.Window(), &client);
    EXPECT_EQ(client.right, 98);
    EXPECT_EQ(client.bottom, 58);
    EXPECT_EQ(surface.ScaleWidth(), 98 * 15);
    RedrawWindow(surface.Window(), nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);

    // On the screen and in a container's picture alike: black all round, the client inside.
    GdiCanvas target(nullptr, 100, 60);
    surface.DrawTo(target.Dc(), RECT { 0, 0, 100, 60 });
    for (const Pixels& look : { WholeWindow(surface.Window()), Pixels::OfDc(target.Dc(), 100, 60) }) {
        ASSERT_EQ(look.Width(), 100);
        EXPECT_EQ(look.Count(0x000000), 2 * 100 + 2 * 58);
        EXPECT_EQ(look.Count(0x000000, 1, 1, 99, 59), 0);
        EXPECT_EQ(look.At(0, 0), 0x000000u);
        EXPECT_EQ(look.At(99, 59), 0x000000u);
        EXPECT_EQ(look.At(1, 1), 0x00FF00u);
        EXPECT_EQ(look.At(98, 58), 0x00FF00u);
    }

    surface.SetAppearance(SurfaceAppearance::ThreeD); // the sunken edge instead
    EXPECT_TRUE(GetWindowLongPtrW(surface.Window(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE);
    GetClientRect(surface.Window(), &client);
    EXPECT_EQ(client.right, 96);
}

TEST_F(SurfaceOnWindow, RefreshPaintsAtOnceAndVisibilityAndEnabledReachTheWindow)
{
    const int before = painter.paints;
    surface.Refresh();
    EXPECT_EQ(painter.paints, before + 1);
    surface.SetVisible(false);
    EXPECT_FALSE(IsWindowVisible(surface.Window()));
    surface.SetVisible(true);
    EXPECT_TRUE(IsWindowVisible(surface.Window()));
    surface.SetEnabled(false);
    EXPECT_FALSE(IsWindowEnabled(surface.Window()));
    SendMessageW(surface.Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(painter.downs.empty());
}

TEST_F(SurfaceOnWindow, ChildrenGetWindowsInsideTheirParentsAndPaintIntoDrawTo)
{
    std::unique_ptr<Surface> child = surface.CreateChild();
    Painter childPainter(*child, 0x0000FF);
    child->Move(150, 300, 450, 150); // 10, 20, 30 x 10 pixels
    HWND childWindow = GetWindow(surface.Window(), GW_CHILD);
    ASSERT_TRUE(childWindow);
    const RECT rect = test::PlaceIn(childWindow, surface.Window());
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(rect.right, 40);
    // A child's mouse comes in its own twips.
    SendMessageW(childWindow, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(2, 3));
    ASSERT_EQ(childPainter.downs.size(), 1u);
    EXPECT_EQ(childPainter.downs[0].button, 2);
    EXPECT_EQ(childPainter.downs[0].x, 30);
    EXPECT_EQ(childPainter.downs[0].y, 45);

    // The container's picture holds the parent with the child over it.
    GdiCanvas target(nullptr, 100, 60);
    surface.DrawTo(target.Dc(), RECT { 0, 0, 100, 60 });
    Pixels drawn = Pixels::OfDc(target.Dc(), 100, 60);
    EXPECT_EQ(drawn.At(5, 5), 0x00FF00u);
    EXPECT_EQ(drawn.At(15, 25), 0x0000FFu);
    EXPECT_EQ(drawn.At(45, 25), 0x00FF00u);
}

TEST(WindowSurfaceLifetime, ChildrenMadeBeforeTheWindowGetTheirsWithIt)
{
    test::TestWindow form(200, 120);
    WindowSurface surface;
    std::unique_ptr<Surface> child = surface.CreateChild();
    child->Move(0, 0, 300, 300);
    EXPECT_EQ(surface.Window(), nullptr);
    surface.CreateWindowIn(form.Get(), RECT { 0, 0, 100, 100 });
    EXPECT_TRUE(GetWindow(surface.Window(), GW_CHILD));
    surface.DestroyWindow();
    EXPECT_EQ(surface.Window(), nullptr);
    EXPECT_FALSE(surface.HasFocus());
    child.reset();
    surface.CreateWindowIn(form.Get(), RECT { 0, 0, 100, 100 });
    EXPECT_FALSE(GetWindow(surface.Window(), GW_CHILD));
}

} // namespace
} // namespace tolva::win32
