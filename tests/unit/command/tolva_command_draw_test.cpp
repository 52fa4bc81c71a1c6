#include "command_test_fixture.h"
#include "core/twips_canvas.h"
#include "platform/headless/raster_canvas.h"
#include <cmath>

namespace tolva::testing {
namespace {

struct InkBounds {
    int32_t left = 1 << 30;
    int32_t top = 1 << 30;
    int32_t right = -1;
    int32_t bottom = -1;
    int count = 0;
};

class CommandDrawTest : public CommandTest {
protected:
    // The pixels inside the frame (and inside the focus marks) that differ from the background.
    InkBounds Ink(ColorRef background) const
    {
        InkBounds ink;
        for (int32_t y = 4; y < 26; ++y) {
            for (int32_t x = 4; x < 116; ++x) {
                if (At(x, y) == background)
                    continue;
                ink.left = std::min(ink.left, x);
                ink.right = std::max(ink.right, x);
                ink.top = std::min(ink.top, y);
                ink.bottom = std::max(ink.bottom, y);
                ++ink.count;
            }
        }
        return ink;
    }

    // How many pixels inside the frame and the focus marks have the colour.
    int Count(ColorRef color) const
    {
        int count = 0;
        for (int32_t y = 4; y < 26; ++y) {
            for (int32_t x = 4; x < 116; ++x)
                count += At(x, y) == color ? 1 : 0;
        }
        return count;
    }

    // Where a text drawn with its cell at (0, 0) puts its first ink column and row.
    static InkBounds ReferenceInk(StringView text)
    {
        headless::RasterCanvas canvas(300, 60);
        canvas.FillRect(0, 0, 300, 60, 0xFFFFFF);
        canvas.DrawText(0, 0, text, ToCanvasFont(Font {}), Black);
        InkBounds ink;
        for (int32_t y = 0; y < 60; ++y) {
            for (int32_t x = 0; x < 300; ++x) {
                if (canvas.Pixel(x, y) != Black)
                    continue;
                ink.left = std::min(ink.left, x);
                ink.top = std::min(ink.top, y);
                ink.right = std::max(ink.right, x);
            }
        }
        return ink;
    }

    static TextExtent Measure(StringView text)
    {
        headless::RasterCanvas canvas(1, 1);
        return canvas.MeasureText(text, ToCanvasFont(Font {}));
    }

    // The caption's cell top: half the height of a space above the middle, one pixel higher.
    static int32_t TextTop()
    {
        const float twips = 450.0f / 2 - float(Measure(u" ").height * 15) / 2 - 15;
        return int32_t(std::nearbyint(twips / 15));
    }

    void ExpectFrame() const
    {
        for (int32_t x = 0; x < 120; ++x) {
            EXPECT_EQ(At(x, 0), Black) << x;
            EXPECT_EQ(At(x, 29), Black) << x;
        }
        for (int32_t y = 0; y < 30; ++y) {
            EXPECT_EQ(At(0, y), Black) << y;
            EXPECT_EQ(At(119, y), Black) << y;
        }
    }
};

// The three looks.

TEST_F(CommandDrawTest, NormalLookIsTheBackColourInsideAOnePixelBlackFrame)
{
    ExpectFrame();
    EXPECT_EQ(At(1, 1), Normal);
    EXPECT_EQ(At(3, 3), Normal);
    EXPECT_EQ(At(118, 28), Normal);
    EXPECT_EQ(Ink(Normal).left, 6 + ReferenceInk(u"TolvaCommand3").left) << "the caption is drawn in black";
}

TEST_F(CommandDrawTest, PointerOverTheButtonShowsTheActiveBackground)
{
    surface.MouseMove(0, 0, 900, 200);
    ExpectFrame();
    EXPECT_EQ(At(1, 1), Hot);
    EXPECT_EQ(At(118, 28), Hot);
}

TEST_F(CommandDrawTest, LeftButtonDownShowsThePushedBackgroundEvenWhileHot)
{
    surface.MouseMove(0, 0, 900, 200);
    surface.MouseDown(1, 0, 900, 200);
    ExpectFrame();
    EXPECT_EQ(At(1, 1), Pushed);
    EXPECT_EQ(At(118, 28), Pushed);
}

TEST_F(CommandDrawTest, ColoursComeFromTheProperties)
{
    button.SetBackColor(0x0000FF);
    EXPECT_EQ(At(1, 1), 0x0000FFu);
    button.SetBackColorActive(0x00FF00);
    surface.MouseMove(0, 0, 900, 200);
    EXPECT_EQ(At(1, 1), 0x00FF00u);
    button.SetBackColorPushed(0xFF0000);
    surface.MouseDown(1, 0, 900, 200);
    EXPECT_EQ(At(1, 1), 0xFF0000u);
}

TEST_F(CommandDrawTest, SystemColoursAreTranslated)
{
    button.SetBackColor(SystemColor::Highlight);
    button.SetForeColor(SystemColor::HighlightText);
    const ColorRef highlight = surface.WindowImage().SystemColor(SystemColorIndex(SystemColor::Highlight));
    const ColorRef highlightText = surface.WindowImage().SystemColor(SystemColorIndex(SystemColor::HighlightText));
    ASSERT_NE(highlight, highlightText);
    EXPECT_EQ(At(1, 1), highlight);
    const InkBounds ink = Ink(highlight);
    ASSERT_GT(ink.count, 0);
    EXPECT_EQ(Count(highlightText), ink.count);
}

TEST_F(CommandDrawTest, DisabledButtonDrawsItsTextInTheDisabledColourOnTheNormalBackground)
{
    button.SetEnabled(false);
    EXPECT_EQ(At(1, 1), Normal);
    const int ink = Ink(Normal).count;
    ASSERT_GT(ink, 0);
    EXPECT_EQ(Count(Disabled), ink);
    button.SetForeColorDisabled(0x0000FF);
    EXPECT_EQ(Count(0x0000FF), ink);
    button.SetEnabled(true);
    EXPECT_EQ(Count(Black), ink);
}

// Marks.

TEST_F(CommandDrawTest, FocusShowsABlackBoxOnePixelInAndAGreyBoxThreePixelsIn)
{
    surface.SetFocus();
    ExpectFrame();
    for (int32_t x = 1; x <= 118; ++x) {
        EXPECT_EQ(At(x, 1), Black) << x;
        EXPECT_EQ(At(x, 28), Black) << x;
    }
    for (int32_t y = 1; y <= 28; ++y) {
        EXPECT_EQ(At(1, y), Black) << y;
        EXPECT_EQ(At(118, y), Black) << y;
    }
    for (int32_t x = 3; x <= 116; ++x) {
        EXPECT_EQ(At(x, 3), Grey) << x;
        EXPECT_EQ(At(x, 26), Grey) << x;
    }
    for (int32_t y = 3; y <= 26; ++y) {
        EXPECT_EQ(At(3, y), Grey) << y;
        EXPECT_EQ(At(116, y), Grey) << y;
    }
    EXPECT_EQ(At(2, 2), Normal);
    EXPECT_EQ(At(4, 4), Normal);
}

TEST_F(CommandDrawTest, FocusMarkGoesWithTheFocus)
{
    headless::HeadlessSurface other { tree };
    surface.SetFocus();
    other.SetFocus();
    EXPECT_EQ(At(1, 1), Normal);
    EXPECT_EQ(At(3, 3), Normal);
}

TEST_F(CommandDrawTest, DefaultButtonShowsOnlyTheInnerBlackBox)
{
    site.displayAsDefault = true;
    surface.AmbientChanged(u"DisplayAsDefault");
    EXPECT_EQ(At(1, 1), Black);
    EXPECT_EQ(At(60, 28), Black);
    EXPECT_EQ(At(118, 15), Black);
    EXPECT_EQ(At(2, 2), Normal);
    EXPECT_EQ(At(3, 3), Normal) << "no grey box without the focus";
}

TEST_F(CommandDrawTest, MenuStyleDrawsADownwardTriangleNearTheRightEdge)
{
    EXPECT_EQ(At(112, 13), Normal);
    button.SetStyle(tkStyle::tkMenu);
    // x0 = 1800 - 165 twips = pixel 109, y0 = 450 \ 2 - 30 twips = pixel 13.
    const struct {
        int32_t y, first, last;
    } rows[] = { { 13, 109, 115 }, { 14, 110, 114 }, { 15, 111, 113 }, { 16, 112, 112 } };
    for (const auto& row : rows) {
        EXPECT_EQ(At(row.first - 1, row.y), Normal) << row.y;
        for (int32_t x = row.first; x <= row.last; ++x)
            EXPECT_EQ(At(x, row.y), Black) << x << "," << row.y;
        EXPECT_EQ(At(row.last + 1, row.y), Normal) << row.y;
    }
    EXPECT_EQ(At(112, 12), Normal);
    EXPECT_EQ(At(112, 17), Normal);
}

// Caption placement.

TEST_F(CommandDrawTest, LeftAlignedCaptionStartsSixPixelsInAndSitsOnePixelAboveTheMiddle)
{
    button.SetCaption(u"Hello");
    const InkBounds reference = ReferenceInk(u"Hello");
    const InkBounds ink = Ink(Normal);
    EXPECT_EQ(ink.left, 6 + reference.left);
    EXPECT_EQ(ink.top, TextTop() + reference.top);
    EXPECT_EQ(ink.right - ink.left, reference.right - reference.left);
}

TEST_F(CommandDrawTest, CentredCaptionIsCentredOnTheWidth)
{
    button.SetCaption(u"Hello");
    button.SetAlignment(tkCommandAlignment::tkCenter);
    const InkBounds reference = ReferenceInk(u"Hello");
    const int32_t width = Measure(u"Hello").width;
    const auto origin = int32_t(std::nearbyint((900.0f - float(width * 15) / 2) / 15));
    const InkBounds ink = Ink(Normal);
    EXPECT_EQ(ink.left, origin + reference.left);
    EXPECT_EQ(ink.top, TextTop() + reference.top);
    EXPECT_LE(std::abs(ink.left - (119 - ink.right)), 3) << "as much room on either side";
}

TEST_F(CommandDrawTest, AnUnknownAlignmentIsKeptAndDrawsAtTheLeft)
{
    button.SetCaption(u"Hello");
    button.SetAlignment(7);
    EXPECT_EQ(button.Alignment(), 7);
    EXPECT_EQ(Ink(Normal).left, 6 + ReferenceInk(u"Hello").left);
}

TEST_F(CommandDrawTest, OnlyTheAccessCharacterIsUnderlined)
{
    button.SetCaption(u"Save");
    const headless::RasterCanvas plain = surface.WindowImage();
    button.SetCaption(u"&Save");
    EXPECT_EQ(surface.AccessKeys(), u"S");
    const int32_t sLeft = 6, sRight = 6 + Measure(u"S").width;
    int underlined = 0;
    for (int32_t y = 0; y < 30; ++y) {
        for (int32_t x = 0; x < 120; ++x) {
            if (plain.Pixel(x, y) == At(x, y))
                continue;
            ++underlined;
            EXPECT_EQ(At(x, y), Black) << x << "," << y;
            EXPECT_GE(x, sLeft - 1) << y;
            EXPECT_LE(x, sRight) << y;
        }
    }
    EXPECT_GE(underlined, Measure(u"S").width - 2);
}

TEST_F(CommandDrawTest, AccessCharacterInTheMiddleKeepsTheTextInPlace)
{
    button.SetCaption(u"Open file");
    const InkBounds plain = Ink(Normal);
    button.SetCaption(u"Open &file");
    EXPECT_EQ(surface.AccessKeys(), u"f");
    const InkBounds marked = Ink(Normal);
    EXPECT_EQ(marked.left, plain.left);
    EXPECT_EQ(marked.right, plain.right);
    EXPECT_GT(marked.bottom, plain.bottom - 1) << "the underline is at or below the text";
}

TEST_F(CommandDrawTest, EmptyCaptionDrawsOnlyTheFrameAndClearsTheAccessKey)
{
    button.SetCaption(u"&Go");
    EXPECT_EQ(surface.AccessKeys(), u"G");
    button.SetCaption(u"");
    EXPECT_EQ(surface.AccessKeys(), u"");
    EXPECT_EQ(Ink(Normal).count, 0);
    ExpectFrame();
}

// Painting.

TEST_F(CommandDrawTest, EveryPaintCopiesOneWholeImageToTheSurface)
{
    const int before = surface.PresentCount();
    surface.Paint();
    EXPECT_EQ(surface.PresentCount(), before + 1);
}

TEST_F(CommandDrawTest, ResizedButtonRedrawsAtItsNewSize)
{
    surface.Resize(3000, 600); // 200 x 40 pixels
    surface.Paint();
    EXPECT_EQ(At(199, 39), Black);
    EXPECT_EQ(At(198, 38), Normal);
    button.SetStyle(tkStyle::tkMenu);
    // x0 = 3000 - 165 twips = pixel 189, y0 = 300 - 30 twips = pixel 18.
    EXPECT_EQ(At(189, 18), Black);
    EXPECT_EQ(At(195, 18), Black);
    EXPECT_EQ(At(188, 18), Normal);
}

TEST_F(CommandDrawTest, TinyAndEmptySizesPaintWithoutFailing)
{
    for (const float size : { 0.0f, 15.0f, 40.0f, 165.0f }) {
        surface.Resize(size, size);
        button.SetStyle(tkStyle::tkMenu);
        button.SetAlignment(tkCommandAlignment::tkCenter);
        surface.SetFocus();
        const int before = surface.PresentCount();
        surface.Paint();
        EXPECT_EQ(surface.PresentCount(), before + 1) << size;
    }
}

} // namespace
} // namespace tolva::testing
