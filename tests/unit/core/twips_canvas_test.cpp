#include "core/twips_canvas.h"
#include "platform/headless/headless_surface.h"
#include "tests/unit/support/picture.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

using headless::HeadlessSurface;
using headless::RasterCanvas;
using headless::WindowTree;

constexpr ColorRef Black = 0x000000;
constexpr ColorRef White = 0xFFFFFF;
constexpr ColorRef Red = 0x0000FF;

class TwipsCanvasTest : public ::testing::Test {
protected:
    TwipsCanvasTest()
    {
        surface.Resize(1500, 750); // 100 x 50 pixels
        canvas.SetSize(surface.ScaleWidth(), surface.ScaleHeight());
        canvas.SetBackColor(White);
    }

    ColorRef At(int32_t x, int32_t y) { return static_cast<RasterCanvas&>(canvas.Image()).Pixel(x, y); }

    WindowTree tree;
    HeadlessSurface surface { tree };
    TwipsCanvas canvas { surface };
};

// A frame box lights its last pixel column and row, an inner box includes both corners, a filled
// box covers both corners given in any order, and a line leaves out its end point.
TEST_F(TwipsCanvasTest, ShapesInTwipsAtFifteenPerPixel)
{
    EXPECT_EQ(canvas.ScaleWidth(), 1500);
    canvas.Box(0, 0, canvas.ScaleWidth() - 15, canvas.ScaleHeight() - 15, Black);
    canvas.Box(15, 15, canvas.ScaleWidth() - 30, canvas.ScaleHeight() - 30, Red);
    canvas.FilledBox(60, 45, 30, 75, Red); // pixels 2..4 x 3..5
    canvas.Line(150, 600, 210, 600, Black); // pixels 10 to 13 of row 40
    EXPECT_EQ(canvas.CurrentX(), 210);
    EXPECT_EQ(canvas.CurrentY(), 600);
    const std::vector<std::string> expected { "0: k100", "1: k1 r98 k1", "2: k1 r1 w96 r1 k1",
        "3-5: k1 r4 w93 r1 k1", "6-39: k1 r1 w96 r1 k1", "40: k1 r1 w8 k4 w84 r1 k1", "41-47: k1 r1 w96 r1 k1",
        "48: k1 r98 k1", "49: k100" };
    EXPECT_EQ(Runs(static_cast<RasterCanvas&>(canvas.Image()), { { Black, 'k' }, { White, 'w' }, { Red, 'r' } }),
        expected);
}

TEST_F(TwipsCanvasTest, SettingTheBackColourClearsToItTranslatingSystemColours)
{
    canvas.FilledBox(0, 0, 300, 300, Red);
    canvas.SetBackColor(SystemColor::ButtonFace);
    EXPECT_EQ(At(5, 5), Rgb(245, 245, 245));
    EXPECT_EQ(canvas.BackColor(), SystemColor::ButtonFace);
}

TEST_F(TwipsCanvasTest, PrintDrawsInTheForeColourAndAdvancesByTheTextWidth)
{
    canvas.SetForeColor(Red);
    canvas.SetCurrentX(90);
    canvas.SetCurrentY(0);
    const float width = canvas.TextWidth(u"Hi");
    EXPECT_EQ(width, float(canvas.Image().MeasureText(u"Hi", ToCanvasFont(canvas.GetFont())).width * 15));
    EXPECT_EQ(
        canvas.TextHeight(u" "), float(canvas.Image().MeasureText(u" ", ToCanvasFont(canvas.GetFont())).height * 15));
    canvas.Print(u"Hi");
    EXPECT_EQ(canvas.CurrentX(), 90 + width);
    bool inked = false;
    for (int32_t y = 0; y < 50; ++y) {
        for (int32_t x = 0; x < 100; ++x) {
            const ColorRef pixel = At(x, y);
            EXPECT_TRUE(pixel == White || pixel == Red);
            if (pixel == Red) {
                inked = true;
                EXPECT_GE(x, 6); // 90 twips
            }
        }
    }
    EXPECT_TRUE(inked);
}

TEST_F(TwipsCanvasTest, CopyToSurfacePresentsTheImageAtTheOrigin)
{
    canvas.FilledBox(0, 0, 0, 0, Red);
    canvas.CopyToSurface();
    EXPECT_EQ(surface.WindowPixel(0, 0), Red);
    EXPECT_EQ(surface.WindowPixel(1, 0), White);
    EXPECT_EQ(surface.WindowPixel(99, 49), White);
}

TEST(ToCanvasFont, ScalesPointsTo96DotsPerInchRoundingHalfAwayFromZero)
{
    const struct {
        double size;
        int32_t height;
    } cases[] = { { 8.25, -11 }, { 8, -11 }, { 9, -12 }, { 10, -13 }, { 12, -16 }, { 7.875, -11 }, { 0, 0 } };
    for (const auto& c : cases) {
        Font font;
        font.size = c.size;
        EXPECT_EQ(ToCanvasFont(font).height, c.height) << c.size;
    }
    Font font;
    font.size = -3;
    EXPECT_EQ(ToCanvasFont(font).height, 0);
}

} // namespace
} // namespace tolva
