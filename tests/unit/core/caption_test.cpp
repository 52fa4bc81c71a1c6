#include "core/caption.h"
#include "core/twips_canvas.h"
#include "platform/headless/headless_surface.h"
#include "tests/unit/support/picture.h"
#include <gtest/gtest.h>
#include <optional>

namespace tolva {
namespace {

using headless::HeadlessSurface;
using headless::RasterCanvas;
using headless::WindowTree;

// An ampersand marks the next character; a doubled one is one ampersand and no key, a trailing
// one is dropped, and a later mark overrides an earlier one.
TEST(ScanCaption, AnAmpersandMarksTheNextCharacter)
{
    const struct {
        const char16_t* caption;
        ScannedCaption scanned;
    } cases[] = {
        { u"E&xit", { u"Exit", 2 } },
        { u"&x", { u"x", 1 } },
        { u"Save && Close", { u"Save & Close", 0 } },
        { u"Total&", { u"Total", 0 } },
        { u"&", { u"", 0 } },
        { u"a&&&", { u"a&", 0 } },
        { u"&Open &File", { u"Open File", 6 } },
        { u"&&&x", { u"&x", 2 } },
        { u"&a&&b", { u"a&b", 1 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(ScanCaption(c.caption), c.scanned) << ToUtf8(c.caption);

    const ScannedCaption exit = ScanCaption(u"E&xit");
    EXPECT_EQ(exit.AccessCharacter(), u'x');
    EXPECT_EQ(exit.Before(), u"E");
    EXPECT_EQ(exit.After(), u"it");
    const ScannedCaption none = ScanCaption(u"Save && Close");
    EXPECT_FALSE(none.HasAccessKey());
    EXPECT_EQ(none.Before(), u"Save & Close");
    EXPECT_EQ(none.After(), u"");
}

// The first column holding the colour at or after fromX on any row, if any.
std::optional<int32_t> FirstColumnWith(const RasterCanvas& canvas, ColorRef color, int32_t fromX = 0)
{
    for (int32_t x = fromX; x < canvas.Width(); ++x) {
        for (int32_t y = 0; y < canvas.Height(); ++y) {
            if (canvas.Pixel(x, y) == color)
                return x;
        }
    }
    return std::nullopt;
}

class DrawCaptionTextTest : public ::testing::Test {
protected:
    DrawCaptionTextTest() { surface.SetFont(Font {}); }

    // The left edge of the second of two identical glyphs drawn from x = 5.
    int32_t SecondGlyphColumn(int32_t letterSpacing)
    {
        RasterCanvas canvas(80, 30);
        DrawCaptionText(canvas, surface, LayOutCaption(canvas, surface, u"ll", letterSpacing), { 5, 2, 80, 30 }, Ink);
        const int32_t first = *FirstColumnWith(canvas, Ink);
        int32_t x = first;
        while (FirstColumnWith(canvas, Ink, x) == x)
            ++x; // past the first glyph's stem
        return *FirstColumnWith(canvas, Ink, x);
    }

    static constexpr ColorRef Ink = 0x0000FF;
    WindowTree tree;
    HeadlessSurface surface { tree };
};

TEST_F(DrawCaptionTextTest, StepsEachCharacterByItsWidthInTheSurfacesFontPlusTheSpacing)
{
    RasterCanvas canvas(10, 10);
    const int32_t advance = canvas.MeasureText(u"l", ToCanvasFont(surface.GetFont())).width;
    ASSERT_GT(advance, 0);
    const int32_t tight = SecondGlyphColumn(0);
    EXPECT_EQ(SecondGlyphColumn(2), tight + 2);
    EXPECT_EQ(LayOutCaption(canvas, surface, u"ll", 0).width, 2 * advance);
    EXPECT_EQ(LayOutCaption(canvas, surface, u"ll", 2).width, 2 * advance + 4);
    // Marks take no room: "&l&&" is drawn as "l&".
    const int32_t ampersand = canvas.MeasureText(u"&", ToCanvasFont(surface.GetFont())).width;
    EXPECT_EQ(LayOutCaption(canvas, surface, u"&l&&", 2).width, advance + ampersand + 4);
}

TEST_F(DrawCaptionTextTest, UnderlinesOnlyTheAccessCharacterAndSetsTheAccessKey)
{
    RasterCanvas plain(80, 30), marked(80, 30);
    DrawCaptionText(plain, surface, LayOutCaption(plain, surface, u"xx", 0), { 0, 0, 80, 30 }, Ink);
    DrawCaptionText(marked, surface, LayOutCaption(marked, surface, u"x&x", 0), { 0, 0, 80, 30 }, Ink);
    EXPECT_EQ(surface.AccessKeys(), u"x");
    const int32_t advance = plain.MeasureText(u"x", ToCanvasFont(surface.GetFont())).width;
    int differencesInFirst = 0, differencesInSecond = 0;
    for (int32_t y = 0; y < 30; ++y) {
        for (int32_t x = 0; x < 80; ++x) {
            if (plain.Pixel(x, y) != marked.Pixel(x, y))
                ++(x < advance ? differencesInFirst : differencesInSecond);
        }
    }
    EXPECT_EQ(differencesInFirst, 0);
    EXPECT_GT(differencesInSecond, 0);
}

TEST_F(DrawCaptionTextTest, DrawsWithACellHeightOf16TenthsOfAPixelPerPoint)
{
    Font big;
    big.size = 20; // a cell of 32 pixels, against 27 at the surface's usual 96 dots per inch
    surface.SetFont(big);
    CanvasFont cell = ToCanvasFont(big);
    cell.height = 32;
    RasterCanvas drawn(60, 60), expected(60, 60);
    DrawCaptionText(drawn, surface, LayOutCaption(drawn, surface, u"H", 0), { 3, 4, 60, 60 }, Ink);
    expected.DrawText(3, 4, u"H", cell, Ink);
    EXPECT_EQ(Runs(drawn, { { Ink, 'i' } }), Runs(expected, { { Ink, 'i' } }));
}

} // namespace
} // namespace tolva
