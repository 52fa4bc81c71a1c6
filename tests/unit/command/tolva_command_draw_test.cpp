#include "command_test_fixture.h"
#include "core/twips_canvas.h"
#include "platform/headless/raster_canvas.h"
#include "tests/unit/support/picture.h"
#include <cmath>
#include <functional>

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

    // The button as runs of named colours (see Runs): k black, g grey, n normal, h hot, p pushed.
    std::vector<std::string> Picture() const
    {
        return Runs(surface.WindowImage(), { { Black, 'k' }, { Grey, 'g' }, { Normal, 'n' }, { Hot, 'h' }, { Pushed, 'p' } });
    }
    // The one-pixel black frame around a fill of one colour.
    static std::vector<std::string> Framed(char fill)
    {
        return { "0: k120", "1-28: k1 " + std::string(1, fill) + "118 k1", "29: k120" };
    }
};

// The looks by state, with an empty caption: the back colours inside a one-pixel black frame;
// the focus adds a black box one pixel in and a grey box three pixels in, the default button the
// black box alone; the menu style a downward triangle near the right edge.
TEST_F(CommandDrawTest, EachStateHasItsLook)
{
    button.SetCaption(u"");
    const struct {
        const char* step;
        std::function<void()> act;
        std::vector<std::string> look;
    } steps[] = {
        { "new", [] {}, Framed('n') },
        { "hot", [&] { surface.MouseMove(0, 0, 900, 200); }, Framed('h') },
        { "pushed while hot", [&] { surface.MouseDown(1, 0, 900, 200); }, Framed('p') },
        { "released", [&] { surface.MouseUp(1, 0, 900, 200); }, Framed('n') },
        { "focused", [&] { surface.SetFocus(); },
            { "0-1: k120", "2: k2 n116 k2", "3: k2 n1 g114 n1 k2", "4-25: k2 n1 g1 n112 g1 n1 k2",
                "26: k2 n1 g114 n1 k2", "27: k2 n116 k2", "28-29: k120" } },
        { "default",
            [&] {
                tree.SetFocus(nullptr);
                site.displayAsDefault = true;
                surface.AmbientChanged(u"DisplayAsDefault");
            },
            { "0-1: k120", "2-27: k2 n116 k2", "28-29: k120" } },
        // x0 = 1800 - 165 twips = pixel 109, y0 = 450 \ 2 - 30 twips = pixel 13.
        { "menu",
            [&] {
                site.displayAsDefault = false;
                button.SetStyle(tkStyle::tkMenu);
            },
            { "0: k120", "1-12: k1 n118 k1", "13: k1 n108 k7 n3 k1", "14: k1 n109 k5 n4 k1", "15: k1 n110 k3 n5 k1",
                "16: k1 n111 k1 n6 k1", "17-28: k1 n118 k1", "29: k120" } },
        // x0 = 3000 - 165 twips = pixel 189, y0 = 300 - 30 twips = pixel 18.
        { "resized menu",
            [&] {
                surface.Resize(3000, 600);
                surface.Paint();
            },
            { "0: k200", "1-17: k1 n198 k1", "18: k1 n188 k7 n3 k1", "19: k1 n189 k5 n4 k1", "20: k1 n190 k3 n5 k1",
                "21: k1 n191 k1 n6 k1", "22-38: k1 n198 k1", "39: k200" } },
    };
    for (const auto& step : steps) {
        step.act();
        EXPECT_EQ(Picture(), step.look) << step.step;
    }
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

// Caption placement.

// Left-aligned captions start six pixels in, centred ones are centred on the width, and an
// unknown alignment is kept and draws at the left; every caption sits one pixel above the middle.
TEST_F(CommandDrawTest, TheCaptionIsPlacedByTheAlignment)
{
    button.SetCaption(u"Hello");
    const InkBounds reference = ReferenceInk(u"Hello");
    const int32_t centred = int32_t(std::nearbyint((900.0f - float(Measure(u"Hello").width * 15) / 2) / 15));
    for (const auto& [alignment, origin] : { std::pair { 0, 6 }, { 1, centred }, { 7, 6 } }) {
        button.SetAlignment(alignment);
        EXPECT_EQ(button.Alignment(), alignment);
        const InkBounds ink = Ink(Normal);
        EXPECT_EQ(ink.left, origin + reference.left) << alignment;
        EXPECT_EQ(ink.top, TextTop() + reference.top) << alignment;
        EXPECT_EQ(ink.right - ink.left, reference.right - reference.left) << alignment;
    }
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
    button.SetCaption(u"");
    EXPECT_EQ(surface.AccessKeys(), u"");
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

// Every paint copies one whole image to the surface, also at sizes too small for the marks.
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
