#include "label_test_fixture.h"
#include <gtest/gtest.h>
#include <optional>

namespace tolva {
namespace {

constexpr OleColor Back = 0x302010;
constexpr OleColor Fore = 0x40F0E0;

// The pixels of one colour in the label's window, cropped to their bounding box, as rows of '#'
// and '.', with the box's top-left corner.
struct Figure {
    int32_t left = 0;
    int32_t top = 0;
    std::vector<std::string> rows;
    bool operator==(const Figure&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Figure& figure)
{
    out << "at (" << figure.left << ", " << figure.top << ")\n";
    for (const std::string& row : figure.rows)
        out << row << "\n";
    return out;
}

Figure FigureOf(const headless::HeadlessSurface& surface, ColorRef color)
{
    const headless::RasterCanvas& image = surface.WindowImage();
    int32_t left = image.Width(), top = image.Height(), right = -1, bottom = -1;
    for (int32_t y = 0; y < image.Height(); ++y) {
        for (int32_t x = 0; x < image.Width(); ++x) {
            if (image.Pixel(x, y) == color) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    Figure figure;
    if (right < 0)
        return figure;
    figure.left = left;
    figure.top = top;
    for (int32_t y = top; y <= bottom; ++y) {
        std::string row;
        for (int32_t x = left; x <= right; ++x)
            row += image.Pixel(x, y) == color ? '#' : '.';
        figure.rows.push_back(row);
    }
    return figure;
}

// The first column at or after fromX that holds the colour on any row.
std::optional<int32_t> FirstColumnWith(const headless::HeadlessSurface& surface, ColorRef color, int32_t fromX)
{
    const headless::RasterCanvas& image = surface.WindowImage();
    for (int32_t x = fromX; x < image.Width(); ++x) {
        for (int32_t y = 0; y < image.Height(); ++y) {
            if (image.Pixel(x, y) == color)
                return x;
        }
    }
    return std::nullopt;
}

class LabelDrawTest : public LabelTest {
protected:
    LabelDrawTest()
    {
        label.SetBackColor(Back);
        label.SetForeColor(Fore);
    }

    ColorRef Pixel(int32_t x, int32_t y) const { return surface.WindowPixel(x, y); }
};

// Colours by state.

TEST_F(LabelDrawTest, EachStateHasItsColours)
{
    label.SetBackColorActive(0x0000AA);
    label.SetBackColorPushed(0x00AA00);
    EXPECT_EQ(Pixel(0, 0), Back);
    surface.MouseMove(0, 0, 15, 15);
    EXPECT_EQ(Pixel(0, 0), 0x0000AAu);
    surface.MouseDown(1, 0, 15, 15);
    EXPECT_EQ(Pixel(99, 19), 0x00AA00u);
    surface.MouseUp(1, 0, 15, 15);
    EXPECT_EQ(Pixel(0, 0), Back);
}

TEST_F(LabelDrawTest, ADisabledLabelIsFilledWithThePushedBackground)
{
    label.SetBackColorPushed(0x00AA00);
    label.SetForeColorDisabled(0x0000BB);
    label.SetArrowPosition(tkArrowPosition::tkLeft);
    label.SetEnabled(false);
    EXPECT_EQ(Pixel(0, 0), 0x00AA00u);
    EXPECT_FALSE(FigureOf(surface, 0x0000BB).rows.empty()); // the glyph in the disabled colour
    EXPECT_TRUE(FigureOf(surface, Fore).rows.empty());
}

TEST_F(LabelDrawTest, SystemColoursAreNotLookedUp)
{
    label.SetBackColor(SystemColor::ButtonFace);
    EXPECT_EQ(Pixel(50, 10), 0x00000Fu);
}

// Glyphs: each icon at each position, with an empty caption (the glyph row is y = 20 / 2 - 3).

struct GlyphCase {
    int32_t icon;
    int32_t position;
    Figure expected;
};

const std::vector<std::string> PointingLeft { "...#", "..##", ".###", "####", ".###", "..##", "...#" };
const std::vector<std::string> PointingRight { "#...", "##..", "###.", "####", "###.", "##..", "#..." };
const std::vector<std::string> PointingUp { "...#...", "..###..", ".#####.", "#######" };
const std::vector<std::string> PointingDown { "#######", ".#####.", "..###..", "...#..." };
const std::vector<std::string> SmallPointingDown { "#####", ".###.", "..#.." };
const std::vector<std::string> PointerLeft { "...#...", "..##...", ".###...", "#######", ".###...", "..##...",
    "...#..." };
const std::vector<std::string> PointerRight { "...#...", "...##..", "...###.", "#######", "...###.", "...##..",
    "...#..." };

using namespace tkArrowIcon;
using namespace tkArrowPosition;

// Anchors: x = 4 at the left, 10 after the (empty) caption, width - 9 = 91 at the end. Left and
// right arrows move 2 right beside the text; up and down arrows move 2 down there, and 3 left and
// 2 down at the end, and are drawn one column further left.
const GlyphCase GlyphCases[] = {
    { tkArrowLeft, tkLeft, { 6, 7, PointingLeft } },
    { tkArrowLeft, tkRight, { 12, 7, PointingLeft } },
    { tkArrowLeft, tkEnd, { 91, 7, PointingLeft } },
    { tkArrowRight, tkLeft, { 6, 7, PointingRight } },
    { tkArrowRight, tkRight, { 12, 7, PointingRight } },
    { tkArrowRight, tkEnd, { 91, 7, PointingRight } },
    { tkArrowUp, tkLeft, { 3, 9, PointingUp } },
    { tkArrowUp, tkRight, { 9, 9, PointingUp } },
    { tkArrowUp, tkEnd, { 87, 9, PointingUp } },
    { tkArrowDown, tkLeft, { 3, 9, PointingDown } },
    { tkArrowDown, tkRight, { 9, 9, SmallPointingDown } },
    { tkArrowDown, tkEnd, { 87, 9, PointingDown } },
    { tkPointerLeft, tkLeft, { 4, 7, PointerLeft } },
    { tkPointerLeft, tkRight, { 10, 7, PointerLeft } },
    { tkPointerLeft, tkEnd, { 91, 7, PointerLeft } },
    { tkPointerRight, tkLeft, { 4, 7, PointerRight } },
    { tkPointerRight, tkRight, { 10, 7, PointerRight } },
    { tkPointerRight, tkEnd, { 91, 7, PointerRight } },
    { tkArrowDown, tkNone, {} }, // no glyph without a position
};

TEST_F(LabelDrawTest, EveryGlyphAtEveryPosition)
{
    label.SetCaption(u"");
    for (const GlyphCase& glyph : GlyphCases) {
        label.SetArrowIcon(glyph.icon);
        label.SetArrowPosition(glyph.position);
        EXPECT_EQ(FigureOf(surface, Fore), glyph.expected) << "icon " << glyph.icon << " at " << glyph.position;
    }
}

TEST_F(LabelDrawTest, TheGlyphsPenColourFollowsTheState)
{
    label.SetCaption(u"");
    label.SetForeColorActive(0x0000CC);
    label.SetArrowPosition(tkEnd);
    surface.MouseMove(0, 0, 15, 15);
    EXPECT_EQ(FigureOf(surface, 0x0000CC), (Figure { 91, 7, PointingLeft }));
}

// Caption.

TEST_F(LabelDrawTest, KerningAddsTwoPixelsPerLetter)
{
    label.SetCaption(u"ABC");
    label.SetArrowIcon(tkArrowRight);
    label.SetArrowPosition(tkRight);
    const Figure plain = FigureOf(surface, Fore);
    label.SetKerning(true);
    const Figure spaced = FigureOf(surface, Fore);
    ASSERT_FALSE(plain.rows.empty());
    // The text still starts 6 pixels in; the glyph after it moves 2 pixels per letter.
    EXPECT_EQ(spaced.left, plain.left);
    EXPECT_EQ(spaced.rows[0].size(), plain.rows[0].size() + 3 * 2);
}

TEST_F(LabelDrawTest, TheTextMakesRoomForALeftGlyph)
{
    label.SetCaption(u"I");
    label.SetArrowPosition(tkNone);
    const std::optional<int32_t> alone = FirstColumnWith(surface, Fore, 0);
    label.SetArrowIcon(tkArrowRight);
    label.SetArrowPosition(tkLeft);
    ASSERT_TRUE(alone.has_value());
    EXPECT_EQ(FirstColumnWith(surface, Fore, 0), 6); // the glyph
    EXPECT_EQ(FirstColumnWith(surface, Fore, 10), *alone + 10); // the letter, 16 pixels in instead of 6
}

TEST_F(LabelDrawTest, ACaptionsAccessKeyBecomesTheSurfacesAccessKey)
{
    label.SetCaption(u"&Next");
    EXPECT_EQ(surface.AccessKeys(), u"N");
    label.SetCaption(u"A && B");
    EXPECT_EQ(surface.AccessKeys(), u"");
}

} // namespace
} // namespace tolva
