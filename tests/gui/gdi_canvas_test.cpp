#include "platform/win32/gdi/gdi_canvas.h"
#include "tests/gui/gui_support.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::Pixels;

constexpr ColorRef White = 0xFFFFFF;
constexpr ColorRef Red = 0x0000FF;
constexpr ColorRef Blue = 0xFF0000;

CanvasFont SansFont(int32_t height = -13)
{
    CanvasFont font;
    font.face = u"Tahoma";
    font.height = height;
    return font;
}

Pixels Read(const GdiCanvas& canvas)
{
    return Pixels::OfDc(canvas.Dc(), canvas.Width(), canvas.Height());
}

TEST(GdiCanvas, FillsTheRectangleWithoutItsRightAndBottomEdges)
{
    GdiCanvas canvas(nullptr, 20, 10);
    canvas.FillRect(0, 0, 20, 10, White);
    canvas.FillRect(2, 3, 7, 8, Red);
    Pixels pixels = Read(canvas);
    EXPECT_EQ(pixels.Count(Red), 5 * 5);
    EXPECT_EQ(pixels.At(2, 3), Red);
    EXPECT_EQ(pixels.At(6, 7), Red);
    EXPECT_EQ(pixels.At(7, 7), White);
    EXPECT_EQ(pixels.At(6, 8), White);
}

TEST(GdiCanvas, DrawsLinesWithoutTheirEndPoint)
{
    GdiCanvas canvas(nullptr, 20, 10);
    canvas.FillRect(0, 0, 20, 10, White);
    canvas.Line(1, 1, 11, 1, Blue);
    canvas.Line(15, 2, 15, 9, Red);
    Pixels pixels = Read(canvas);
    EXPECT_EQ(pixels.Count(Blue), 10);
    EXPECT_EQ(pixels.At(10, 1), Blue);
    EXPECT_EQ(pixels.At(11, 1), White);
    EXPECT_EQ(pixels.Count(Red), 7);
    EXPECT_EQ(pixels.At(15, 9), White);
}

TEST(GdiCanvas, DrawsTextOnATransparentBackgroundInsideItsMeasure)
{
    GdiCanvas canvas(nullptr, 80, 30);
    canvas.FillRect(0, 0, 80, 30, White);
    const TextExtent extent = canvas.MeasureText(u"Wg", SansFont());
    canvas.DrawText(5, 4, u"Wg", SansFont(), Blue);
    Pixels pixels = Read(canvas);
    const int inside = pixels.Count(White, 5, 4, 5 + extent.width, 4 + extent.height);
    EXPECT_GT(pixels.Count(White) - inside, 0);
    // Only text pixels changed, all of them inside the measured cell; the rest stays white.
    EXPECT_EQ(pixels.Count(White), 80 * 30 - (extent.width * extent.height - inside));
    EXPECT_GT(extent.width * extent.height - inside, 10);
}

TEST(GdiCanvas, MeasuresWiderTextWiderAndAnEmptyTextAsOneLineHigh)
{
    GdiCanvas canvas(nullptr, 10, 10);
    const TextExtent one = canvas.MeasureText(u"W", SansFont());
    const TextExtent two = canvas.MeasureText(u"WW", SansFont());
    const TextExtent none = canvas.MeasureText(u"", SansFont());
    EXPECT_GT(one.width, 0);
    EXPECT_EQ(two.width, 2 * one.width);
    EXPECT_EQ(none.width, 0);
    EXPECT_EQ(none.height, one.height);
    EXPECT_GT(canvas.MeasureText(u"W", SansFont(-26)).height, one.height);
}

TEST(GdiCanvas, AnswersSystemColoursFromTheSystem)
{
    GdiCanvas canvas(nullptr, 1, 1);
    EXPECT_EQ(canvas.SystemColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.SystemColor(COLOR_WINDOWTEXT), GetSysColor(COLOR_WINDOWTEXT));
}

TEST(GdiCanvas, ClampsImpossibleSizesAndStillDraws)
{
    GdiCanvas empty(nullptr, -5, 0);
    EXPECT_EQ(empty.Width(), 0);
    EXPECT_EQ(empty.Height(), 0);
    empty.FillRect(0, 0, 10, 10, Red);
    empty.DrawText(0, 0, u"x", SansFont(), Red);
    GdiCanvas huge(nullptr, 1 << 30, 1);
    EXPECT_EQ(huge.Width(), GdiCanvas::MaxSide);
}

TEST(GdiCanvas, CopiesItsImageToAnotherDeviceContext)
{
    GdiCanvas source(nullptr, 10, 10);
    source.FillRect(0, 0, 10, 10, Red);
    GdiCanvas target(nullptr, 20, 20);
    target.FillRect(0, 0, 20, 20, White);
    source.CopyTo(target.Dc(), 5, 6, 4, 3);
    Pixels pixels = Read(target);
    EXPECT_EQ(pixels.Count(Red), 12);
    EXPECT_EQ(pixels.At(5, 6), Red);
    EXPECT_EQ(pixels.At(8, 8), Red);
    source.StretchTo(target.Dc(), RECT { 0, 0, 20, 20 });
    EXPECT_EQ(Read(target).Count(Red), 400);
}

TEST(GdiCanvas, HoldsNoDrawingObjectsAfterItsCalls)
{
    GdiCanvas warm(nullptr, 40, 20);
    warm.DrawText(0, 0, u"warm up", SansFont(), Red);
    const int before = test::GdiObjectCount();
    for (int i = 0; i < 1000; ++i) {
        GdiCanvas canvas(nullptr, 40, 20);
        canvas.FillRect(0, 0, 40, 20, White);
        canvas.Line(0, 0, 39, 19, Blue);
        canvas.DrawText(1, 1, u"Abc", SansFont(), Red);
        canvas.MeasureText(u"Abc", SansFont());
    }
    EXPECT_EQ(test::GdiObjectCount(), before);
}

} // namespace
} // namespace tolva::win32
