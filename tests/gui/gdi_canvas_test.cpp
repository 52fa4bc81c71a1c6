#include "platform/win32/gdi/gdi_canvas.h"
#include "tests/gui/gui_support.h"
#include <functional>
#include <string>
#include <vector>
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

// Characters drawn in one go land exactly where and as they land drawn one by one: with steps
// narrower than the glyphs (overlapping) and wider, in fonts whose glyphs overhang, and in the
// cases that must not be drawn as a run (a line under or through the text, joined scripts).
TEST(GdiCanvas, DrawsCharactersAtTheirStepsAsIfOneByOne)
{
    const auto font = [](const char16_t* face, int32_t height, int32_t weight, bool italic, bool underline,
                          bool strikeOut) {
        CanvasFont made = SansFont(height);
        made.face = face;
        made.weight = weight;
        made.italic = italic;
        made.underline = underline;
        made.strikeOut = strikeOut;
        return made;
    };
    const struct {
        const char* name;
        std::u16string text;
        CanvasFont font;
        int32_t shrink; // pixels taken off each character's own width to make its step
    } cases[] = {
        { "plain", u"Next page", font(u"MS Sans Serif", 13, 400, false, false, false), 0 },
        { "overlapping", u"Wxyz Aj", font(u"MS Sans Serif", 13, 400, false, false, false), 3 },
        { "spaced bold", u"Hello, all", font(u"Tahoma", 19, 700, false, false, false), -2 },
        { "italic overhang", u"fjfW", font(u"Tahoma", 24, 400, true, false, false), 1 },
        { "underlined", u"li Wl", font(u"Tahoma", 16, 400, false, true, false), 1 },
        { "struck out", u"li Wl", font(u"Tahoma", 16, 400, false, false, true), -1 },
        { "joining script", u"\u0644\u0627\u0645 e\u0301", font(u"Tahoma", 16, 400, false, false, false), 0 },
    };
    for (const auto& c : cases) {
        GdiCanvas together(nullptr, 160, 40), alone(nullptr, 160, 40);
        std::vector<int32_t> steps;
        for (char16_t character : c.text)
            steps.push_back(together.MeasureText(StringView(&character, 1), c.font).width - c.shrink);
        for (GdiCanvas* canvas : { &together, &alone })
            canvas->FillRect(0, 0, 160, 40, White);
        together.DrawCharacters(3, 5, c.text, steps, c.font, Blue);
        alone.Canvas::DrawCharacters(3, 5, c.text, steps, c.font, Blue);
        const Pixels got = Read(together), want = Read(alone);
        EXPECT_EQ(got.DifferencesFrom(want), 0) << c.name;
        EXPECT_GT(160 * 40 - want.Count(White), 20) << c.name;
    }
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

// What a canvas keeps is bounded however many brushes, pens and fonts it asks for, and gone with
// the canvas.
TEST(GdiCanvas, KeepsWhatOneCanvasAsksForBoundedWhateverItAsksFor)
{
    GdiCanvas warm(nullptr, 40, 20);
    warm.DrawText(0, 0, u"warm up", SansFont(), Red);
    const int before = test::GdiObjectCount();
    {
        GdiCanvas canvas(nullptr, 40, 20);
        for (int i = 0; i < 500; ++i) {
            canvas.FillRect(0, 0, 40, 20, ColorRef(i));
            canvas.Line(0, 0, 39, 19, ColorRef(i));
            canvas.DrawText(1, 1, u"Abc", SansFont(-8 - i % 100), Red);
            canvas.MeasureText(u"Abc", SansFont(-8 - i % 50));
        }
        EXPECT_LE(test::GdiObjectCount(), before + 2 + 3 * int(DrawingObjects::Limit));
        // Emptied kinds were deselected first: the canvas still draws text.
        canvas.FillRect(0, 0, 40, 20, White);
        canvas.DrawText(1, 1, u"Abc", SansFont(), Red);
        EXPECT_GT(Read(canvas).Count(Red), 10);
    }
    EXPECT_EQ(test::GdiObjectCount(), before);
}

// Drawing inside an area is drawing at the area's offset, with every pixel outside the area and
// the enclosing clip left as it was: checked for each primitive against the same drawing done
// without an area and masked.
TEST(GdiCanvasDrawingArea, DrawsInTheAreasCoordinatesOnlyInsideIt)
{
    const struct {
        const char* name;
        std::function<void(Canvas&, int32_t dx, int32_t dy)> draw;
    } primitives[] = {
        { "fill", [](Canvas& c, int32_t dx, int32_t dy) { c.FillRect(dx - 3, dy + 2, dx + 30, dy + 9, Blue); } },
        { "frame", [](Canvas& c, int32_t dx, int32_t dy) { c.Frame(Rect { 1, 1, 15, 8 }.Offset(dx, dy), Blue); } },
        { "line", [](Canvas& c, int32_t dx, int32_t dy) { c.Line(dx - 5, dy - 2, dx + 40, dy + 12, Blue); } },
        { "text", [](Canvas& c, int32_t dx, int32_t dy) { c.DrawText(dx - 4, dy - 3, u"Wgx", SansFont(), Blue); } },
    };
    const Rect outer { 4, 2, 36, 18 }; // a row, in image pixels
    const Rect cell { 6, 3, 26, 13 }; // a cell of it, in the row's coordinates
    const Rect visible = cell.Offset(outer.left, outer.top).Intersect(outer);
    for (const auto& primitive : primitives) {
        GdiCanvas expected(nullptr, 40, 20), actual(nullptr, 40, 20);
        expected.FillRect(0, 0, 40, 20, White);
        actual.FillRect(0, 0, 40, 20, White);
        primitive.draw(expected, outer.left + cell.left, outer.top + cell.top);
        {
            DrawingArea row(actual, outer);
            DrawingArea inCell(actual, cell);
            primitive.draw(actual, 0, 0);
        }
        const Pixels want = Read(expected), got = Read(actual);
        int inked = 0;
        for (int32_t y = 0; y < 20; ++y) {
            for (int32_t x = 0; x < 40; ++x) {
                const ColorRef pixel = visible.Contains(x, y) ? want.At(x, y) : White;
                EXPECT_EQ(got.At(x, y), pixel) << primitive.name << " at " << x << "," << y;
                inked += pixel == Blue ? 1 : 0;
            }
        }
        EXPECT_GT(inked, 0) << primitive.name;
        EXPECT_LT(inked, visible.Width() * visible.Height()) << primitive.name;
        // Back to the whole image: a copy takes the image from its corner.
        actual.FillRect(0, 0, 1, 1, Red);
        GdiCanvas target(nullptr, 2, 2);
        actual.CopyTo(target.Dc(), 0, 0, 1, 1);
        EXPECT_EQ(Read(target).At(0, 0), Red) << primitive.name;
    }
}

} // namespace
} // namespace tolva::win32
