#include "core/twips_canvas.h"
#include "platform/headless/headless_surface.h"
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

TEST_F(TwipsCanvasTest, SizeIsInTwipsAtFifteenPerPixel)
{
    EXPECT_EQ(canvas.Image().Width(), 100);
    EXPECT_EQ(canvas.Image().Height(), 50);
    EXPECT_EQ(canvas.ScaleWidth(), 1500);
    EXPECT_EQ(At(99, 49), White);
}

TEST_F(TwipsCanvasTest, AFrameBoxLightsTheLastPixelColumnAndRow)
{
    canvas.Box(0, 0, canvas.ScaleWidth() - 15, canvas.ScaleHeight() - 15, Black);
    for (int32_t x = 0; x < 100; ++x) {
        EXPECT_EQ(At(x, 0), Black) << x;
        EXPECT_EQ(At(x, 49), Black) << x;
    }
    for (int32_t y = 0; y < 50; ++y) {
        EXPECT_EQ(At(0, y), Black) << y;
        EXPECT_EQ(At(99, y), Black) << y;
    }
    EXPECT_EQ(At(1, 1), White);
    EXPECT_EQ(At(98, 48), White);
}

TEST_F(TwipsCanvasTest, AnInnerBoxIncludesBothCorners)
{
    canvas.Box(15, 15, canvas.ScaleWidth() - 30, canvas.ScaleHeight() - 30, Red);
    EXPECT_EQ(At(1, 1), Red);
    EXPECT_EQ(At(98, 48), Red);
    EXPECT_EQ(At(98, 1), Red);
    EXPECT_EQ(At(0, 0), White);
    EXPECT_EQ(At(99, 49), White);
    EXPECT_EQ(At(2, 2), White);
}

TEST_F(TwipsCanvasTest, ALineLeavesOutItsEndPointAndMovesTheCurrentPosition)
{
    canvas.Line(15, 30, 75, 30, Black); // pixels 1 to 4 of row 2
    EXPECT_EQ(At(0, 2), White);
    EXPECT_EQ(At(1, 2), Black);
    EXPECT_EQ(At(4, 2), Black);
    EXPECT_EQ(At(5, 2), White);
    EXPECT_EQ(canvas.CurrentX(), 75);
    EXPECT_EQ(canvas.CurrentY(), 30);
}

TEST_F(TwipsCanvasTest, AFilledBoxCoversBothCorners)
{
    canvas.FilledBox(60, 45, 30, 75, Red); // corners in any order: pixels 2..4 x 3..5
    for (int32_t y = 2; y <= 6; ++y) {
        for (int32_t x = 1; x <= 5; ++x) {
            const bool inside = x >= 2 && x <= 4 && y >= 3 && y <= 5;
            EXPECT_EQ(At(x, y), inside ? Red : White) << x << "," << y;
        }
    }
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
