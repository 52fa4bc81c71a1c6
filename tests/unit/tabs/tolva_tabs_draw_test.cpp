#include "core/twips_canvas.h"
#include "platform/headless/raster_canvas.h"
#include "tabs_test_fixture.h"
#include "tests/unit/support/picture.h"

namespace tolva::testing {
namespace {

const ColorRef ButtonFace = headless::RasterCanvas(1, 1).SystemColor(SystemColorIndex(SystemColor::ButtonFace));
constexpr ColorRef ButtonText = 0x000000;
constexpr ColorRef Border = 0x8C969C;
constexpr ColorRef Inactive = 0xCEDBDE;
constexpr ColorRef Behind = 0xFFFFFF;

// The window as runs of named colours (see Runs): '#' outline, '=' the folder's colour, '-' an
// inactive tab, '.' behind the tabs, 't' text.
std::vector<std::string> Picture(const headless::HeadlessSurface& surface)
{
    return Runs(surface.WindowImage(),
        { { Border, '#' }, { ButtonFace, '=' }, { Inactive, '-' }, { Behind, '.' }, { ButtonText, 't' } });
}

// How many pixels of a colour lie in the columns left <= x < right.
int CountIn(const headless::HeadlessSurface& surface, ColorRef color, int32_t left, int32_t right)
{
    int count = 0;
    for (int32_t y = 0; y < surface.WindowImage().Height(); ++y)
        for (int32_t x = left; x < right; ++x)
            count += surface.WindowPixel(x, y) == color ? 1 : 0;
    return count;
}

TEST_F(TabsTest, WithoutTabsItIsOneBorderedBoxInTheBackColour)
{
    surface.Resize(150, 90);
    EXPECT_EQ(Picture(surface), (std::vector<std::string> { "0: #10", "1-4: #1 =8 #1", "5: #10" }));
}

// Two tabs of 20 pixels and a gap of 5 over a folder, the second selected: it is filled with the
// folder's colour and opens into it through the folder's top edge.
TEST_F(TabsTest, TheSelectedTabOpensIntoTheFolder)
{
    surface.Resize(825, 360);
    tabs.SetTabWidth(300);
    AddTabs({ u"", u"" });
    tabs.SetSelectedItem(2);
    const std::vector<std::string> expected { "0: #21 .4 #21 .9", "1-13: #1 -19 #1 .4 #1 =19 #1 .9",
        "14: #26 =19 #10", "15-22: #1 =53 #1", "23: #55" };
    EXPECT_EQ(Picture(surface), expected);
}

TEST_F(TabsTest, CaptionsAreInTheButtonTextColourWhateverForeColorSays)
{
    tabs.SetForeColor(0x0000FF);
    AddTabs({ u"One", u"Two" });
    EXPECT_GT(CountIn(surface, ButtonText, 0, 400), 0);
    EXPECT_EQ(CountIn(surface, 0x0000FF, 0, 400), 0);
}

TEST_F(TabsTest, ACaptionWiderThanItsTabRunsOverTheEdge)
{
    tabs.SetTabWidth(300); // 20 pixels, the caption starting 6 in
    AddTabs({ u"Wide caption" });
    EXPECT_GT(CountIn(surface, ButtonText, 21, 60), 0);
}

TEST_F(TabsTest, OnlyTheAccessCharacterIsUnderlined)
{
    AddTabs({ u"File" });
    const int plain = CountIn(surface, ButtonText, 0, 400);
    tabs.SetTabs(1, u"&File");
    const int marked = CountIn(surface, ButtonText, 0, 400);
    headless::RasterCanvas canvas(1, 1);
    const int32_t fWidth = canvas.MeasureText(u"F", ToCanvasFont(Font {})).width;
    EXPECT_GT(marked, plain);
    EXPECT_LE(marked - plain, fWidth) << "one underline under F at most";
}

} // namespace
} // namespace tolva::testing
