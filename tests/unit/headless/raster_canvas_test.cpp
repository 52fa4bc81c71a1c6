#include "platform/headless/raster_canvas.h"
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace tolva::headless {
namespace {

constexpr ColorRef Ink = 0x00FF00;

using Points = std::set<std::pair<int32_t, int32_t>>;

Points LitPixels(const RasterCanvas& canvas)
{
    Points lit;
    for (int32_t y = 0; y < canvas.Height(); ++y) {
        for (int32_t x = 0; x < canvas.Width(); ++x) {
            if (canvas.Pixel(x, y) != 0)
                lit.insert({ x, y });
        }
    }
    return lit;
}

TEST(RasterCanvas, StartsBlackAndAnswersOutsidePixelsWithAnError)
{
    RasterCanvas canvas(3, 2);
    EXPECT_EQ(canvas.Width(), 3);
    EXPECT_EQ(canvas.Height(), 2);
    EXPECT_TRUE(LitPixels(canvas).empty());
    EXPECT_THROW(canvas.Pixel(3, 0), std::out_of_range);
    EXPECT_THROW(canvas.Pixel(0, -1), std::out_of_range);
}

TEST(RasterCanvas, ClampsSizesFromOutside)
{
    EXPECT_EQ(RasterCanvas(-5, 4).Width(), 0);
    EXPECT_EQ(RasterCanvas(1, 100000).Height(), RasterCanvas::MaxSide);
}

TEST(RasterCanvas, FillRectExcludesTheRightAndBottomEdgesClipsAndIgnoresEmptyRectangles)
{
    RasterCanvas canvas(4, 4);
    canvas.FillRect(3, 3, 2, 2, Ink);
    canvas.FillRect(10, 0, 20, 4, Ink);
    EXPECT_TRUE(LitPixels(canvas).empty());
    canvas.FillRect(1, 2, 4, 3, Ink);
    EXPECT_EQ(LitPixels(canvas), (Points { { 1, 2 }, { 2, 2 }, { 3, 2 } }));
    canvas.FillRect(-100, -100, 100, 100, Ink);
    EXPECT_EQ(LitPixels(canvas).size(), 16u);
}

// Lines leave out their end point and step one pixel each way on diagonals. GDI breaks ties
// between two pixels differently by direction, so that a line and its reverse light the same
// pixels.
TEST(RasterCanvas, LinesLightThePixelsGdiLights)
{
    const struct {
        int32_t x1, y1, x2, y2;
        Points lit;
    } cases[] = {
        { 1, 3, 5, 3, { { 1, 3 }, { 2, 3 }, { 3, 3 }, { 4, 3 } } },
        { 5, 3, 1, 3, { { 5, 3 }, { 4, 3 }, { 3, 3 }, { 2, 3 } } },
        { 2, 1, 2, 4, { { 2, 1 }, { 2, 2 }, { 2, 3 } } },
        { 2, 4, 2, 1, { { 2, 4 }, { 2, 3 }, { 2, 2 } } },
        { 3, 3, 3, 3, {} },
        { 3, 3, 4, 3, { { 3, 3 } } },
        { 0, 0, 4, 4, { { 0, 0 }, { 1, 1 }, { 2, 2 }, { 3, 3 } } },
        { 4, 0, 0, 4, { { 4, 0 }, { 3, 1 }, { 2, 2 }, { 1, 3 } } },
        { 3, 3, 0, 0, { { 3, 3 }, { 2, 2 }, { 1, 1 } } },
        { 0, 0, 4, 2, { { 0, 0 }, { 1, 0 }, { 2, 1 }, { 3, 1 } } },
        { 4, 2, 0, 0, { { 4, 2 }, { 3, 1 }, { 2, 1 }, { 1, 0 } } },
        { 0, 0, 2, 4, { { 0, 0 }, { 0, 1 }, { 1, 2 }, { 1, 3 } } },
        { 0, 0, 6, 2, { { 0, 0 }, { 1, 0 }, { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 2 } } },
    };
    for (const auto& c : cases) {
        RasterCanvas canvas(12, 12);
        canvas.Line(c.x1, c.y1, c.x2, c.y2, Ink);
        EXPECT_EQ(LitPixels(canvas), c.lit) << c.x1 << "," << c.y1 << " to " << c.x2 << "," << c.y2;
    }
}

TEST(RasterCanvas, FarAwayLinesAreClippedWithoutWalkingTheirLength)
{
    RasterCanvas canvas(10, 10);
    canvas.Line(-2000000000, 5, 2000000000, 5, Ink);
    canvas.Line(7, 2000000000, 7, -2000000000, Ink);
    const Points lit = LitPixels(canvas);
    EXPECT_EQ(lit.size(), 19u);
    EXPECT_TRUE(lit.count({ 0, 5 }) && lit.count({ 9, 5 }) && lit.count({ 7, 0 }) && lit.count({ 7, 9 }));
}

class RasterTextTest : public ::testing::Test {
protected:
    static CanvasFont Font(int32_t height)
    {
        CanvasFont font;
        font.face = u"Arial";
        font.height = height;
        return font;
    }

    RasterCanvas canvas { 120, 40 };
};

TEST_F(RasterTextTest, MeasuresTheAdvanceWidthAndTheCellHeight)
{
    const TextExtent a = canvas.MeasureText(u"A", Font(-11));
    const TextExtent b = canvas.MeasureText(u"b", Font(-11));
    const TextExtent ab = canvas.MeasureText(u"Ab", Font(-11));
    EXPECT_GT(a.width, 0);
    EXPECT_EQ(ab.width, a.width + b.width);
    EXPECT_EQ(ab.height, a.height);
    EXPECT_EQ(canvas.MeasureText(u"", Font(-11)).width, 0);
    EXPECT_EQ(canvas.MeasureText(u"", Font(-11)).height, a.height);
    // An 11-pixel em of Liberation Sans has a cell of 10 + 2 pixels.
    EXPECT_EQ(a.height, 12);
    EXPECT_GT(canvas.MeasureText(u"A", Font(-22)).width, a.width);
}

TEST_F(RasterTextTest, APositiveHeightIsTheCellHeight)
{
    EXPECT_LT(canvas.MeasureText(u"x", Font(12)).height, canvas.MeasureText(u"x", Font(-12)).height);
    EXPECT_NEAR(canvas.MeasureText(u"x", Font(24)).height, 24, 1);
    EXPECT_NEAR(canvas.MeasureText(u"x", Font(13)).height, 13, 1);
}

TEST_F(RasterTextTest, DrawsOnlyTheTextColourInsideTheCellWithoutTouchingTheBackground)
{
    canvas.FillRect(0, 0, 120, 40, 0x123456);
    canvas.DrawText(10, 5, u"Wg", Font(-11), Ink);
    const TextExtent extent = canvas.MeasureText(u"Wg", Font(-11));
    int inked = 0;
    for (int32_t y = 0; y < 40; ++y) {
        for (int32_t x = 0; x < 120; ++x) {
            const ColorRef pixel = canvas.Pixel(x, y);
            ASSERT_TRUE(pixel == Ink || pixel == 0x123456) << "anti-aliased pixel at " << x << "," << y;
            if (pixel == Ink) {
                ++inked;
                EXPECT_GE(y, 5);
                EXPECT_LT(y, 5 + extent.height);
                EXPECT_GE(x, 10);
                EXPECT_LT(x, 10 + extent.width + 1);
            }
        }
    }
    EXPECT_GT(inked, 10);
}

TEST_F(RasterTextTest, UnderlineIsOneRowBelowTheBaselineAsLongAsTheAdvance)
{
    CanvasFont underlined = Font(-11);
    underlined.underline = true;
    RasterCanvas plain(120, 40);
    plain.DrawText(10, 5, u"mm", Font(-11), Ink);
    canvas.DrawText(10, 5, u"mm", underlined, Ink);
    const int32_t width = canvas.MeasureText(u"mm", Font(-11)).width;
    std::set<int32_t> rows;
    for (const auto& [x, y] : LitPixels(canvas)) {
        if (plain.Pixel(x, y) == 0)
            rows.insert(y);
    }
    ASSERT_EQ(rows.size(), 1u);
    const int32_t row = *rows.begin();
    EXPECT_GT(row, 5 + 6); // below the body of the letters
    EXPECT_LT(row, 5 + 12); // inside the cell
    for (int32_t x = 10; x < 10 + width; ++x)
        EXPECT_EQ(canvas.Pixel(x, row), Ink) << x;
    EXPECT_EQ(canvas.Pixel(9, row), 0u);
    EXPECT_EQ(canvas.Pixel(10 + width, row), 0u);
}

TEST_F(RasterTextTest, StrikeOutCrossesTheMiddleOfTheLetters)
{
    CanvasFont struck = Font(-11);
    struck.strikeOut = true;
    canvas.DrawText(0, 0, u"__", struck, Ink); // nothing of "_" is near the middle
    const int32_t width = canvas.MeasureText(u"__", struck).width;
    int32_t strikeRow = -1;
    for (int32_t y = 0; y < 8; ++y) {
        if (canvas.Pixel(width / 2, y) == Ink)
            strikeRow = y;
    }
    EXPECT_GE(strikeRow, 4);
    EXPECT_LE(strikeRow, 7);
}

TEST_F(RasterTextTest, BoldAndItalicPickOtherFaces)
{
    CanvasFont bold = Font(-11);
    bold.weight = 700;
    CanvasFont italic = Font(-11);
    italic.italic = true;
    RasterCanvas regular(120, 40), heavy(120, 40), slanted(120, 40);
    regular.DrawText(0, 0, u"Wide", Font(-11), Ink);
    heavy.DrawText(0, 0, u"Wide", bold, Ink);
    slanted.DrawText(0, 0, u"Wide", italic, Ink);
    EXPECT_GT(LitPixels(heavy).size(), LitPixels(regular).size());
    EXPECT_NE(LitPixels(slanted), LitPixels(regular));
}

TEST_F(RasterTextTest, TextPartlyOutsideTheImageIsClipped)
{
    canvas.DrawText(-5, -6, u"Clip", Font(-30), Ink);
    canvas.DrawText(115, 35, u"Clip", Font(-30), Ink);
    canvas.DrawText(-2000000000, 2000000000, u"Far", Font(-11), Ink);
    EXPECT_FALSE(LitPixels(canvas).empty());
}

TEST(RasterCanvasColours, SystemColoursAreThoseOfANewWinePrefix)
{
    const RasterCanvas canvas(1, 1);
    EXPECT_EQ(canvas.SystemColor(15), Rgb(245, 245, 245)); // button face
    EXPECT_EQ(canvas.SystemColor(18), Rgb(0, 0, 0)); // button text
    EXPECT_EQ(canvas.SystemColor(5), Rgb(255, 255, 255)); // window
    EXPECT_EQ(canvas.SystemColor(8), Rgb(0, 0, 0)); // window text
    EXPECT_EQ(canvas.SystemColor(13), Rgb(48, 150, 250)); // highlight
    EXPECT_EQ(canvas.SystemColor(14), Rgb(255, 255, 255)); // highlight text
    EXPECT_EQ(canvas.SystemColor(17), Rgb(166, 166, 166)); // grey text
    EXPECT_EQ(canvas.SystemColor(99), 0u);
    EXPECT_EQ(TranslateColor(canvas, 0x8000000F), Rgb(245, 245, 245));
    EXPECT_EQ(TranslateColor(canvas, 0x01ABCDEF), 0xABCDEFu);
}

TEST(RasterCanvasCopy, CopiesTheSourcesCornerClipped)
{
    RasterCanvas source(3, 3), target(4, 4);
    source.FillRect(0, 0, 3, 3, Ink);
    target.CopyFrom(source, 2, 2, 3, 3);
    EXPECT_EQ(LitPixels(target), (Points { { 2, 2 }, { 3, 2 }, { 2, 3 }, { 3, 3 } }));
    target.CopyFrom(source, -1, 0, 10, 1);
    EXPECT_EQ(target.Pixel(0, 0), Ink);
    EXPECT_EQ(target.Pixel(2, 0), 0u);
}

// Drawing inside an area is drawing at the area's offset, with every pixel outside the area and
// the enclosing clip left as it was: checked for each primitive against the same drawing done
// without an area and masked.
TEST(RasterCanvasDrawingArea, DrawsInTheAreasCoordinatesOnlyInsideIt)
{
    CanvasFont font;
    font.height = -13;
    const struct {
        const char* name;
        std::function<void(Canvas&, int32_t dx, int32_t dy)> draw;
    } primitives[] = {
        { "fill", [](Canvas& c, int32_t dx, int32_t dy) { c.FillRect(dx - 3, dy + 2, dx + 30, dy + 9, Ink); } },
        { "frame", [](Canvas& c, int32_t dx, int32_t dy) { c.Frame(Rect { 1, 1, 15, 8 }.Offset(dx, dy), Ink); } },
        { "line", [](Canvas& c, int32_t dx, int32_t dy) { c.Line(dx - 5, dy - 2, dx + 40, dy + 12, Ink); } },
        { "text", [&](Canvas& c, int32_t dx, int32_t dy) { c.DrawText(dx - 4, dy - 3, u"Wgx", font, Ink); } },
    };
    const Rect outer { 4, 2, 36, 18 }; // a row, in image pixels
    const Rect cell { 6, 3, 26, 13 }; // a cell of it, in the row's coordinates
    const Rect visible = cell.Offset(outer.left, outer.top).Intersect(outer);
    for (const auto& primitive : primitives) {
        RasterCanvas expected(40, 20), actual(40, 20);
        primitive.draw(expected, outer.left + cell.left, outer.top + cell.top);
        {
            DrawingArea row(actual, outer);
            DrawingArea inCell(actual, cell);
            primitive.draw(actual, 0, 0);
        }
        EXPECT_EQ(actual.Origin(), PixelPoint {}) << primitive.name;
        EXPECT_EQ(actual.Clip(), Canvas::Unclipped) << primitive.name;
        int inked = 0;
        for (int32_t y = 0; y < 20; ++y) {
            for (int32_t x = 0; x < 40; ++x) {
                const ColorRef want = visible.Contains(x, y) ? expected.Pixel(x, y) : 0;
                EXPECT_EQ(actual.Pixel(x, y), want) << primitive.name << " at " << x << "," << y;
                inked += want == Ink ? 1 : 0;
            }
        }
        EXPECT_GT(inked, 0) << primitive.name;
        EXPECT_LT(inked, visible.Width() * visible.Height()) << primitive.name;
    }
}

TEST(RasterCanvasDrawingArea, AClipOnlyAreaKeepsTheOriginAndAnEmptyOneDrawsNothing)
{
    RasterCanvas canvas(8, 8);
    {
        DrawingArea clip(canvas, Rect { 2, 2, 4, 4 }, DrawingArea::KeepOrigin);
        canvas.FillRect(0, 0, 8, 8, Ink);
    }
    EXPECT_EQ(LitPixels(canvas), (Points { { 2, 2 }, { 3, 2 }, { 2, 3 }, { 3, 3 } }));
    DrawingArea empty(canvas, Rect { 5, 5, 5, 9 });
    canvas.FillRect(-10, -10, 10, 10, 0x123456);
    canvas.Line(-10, -10, 10, 10, 0x123456);
    EXPECT_EQ(LitPixels(canvas).size(), 4u);
}

} // namespace
} // namespace tolva::headless
