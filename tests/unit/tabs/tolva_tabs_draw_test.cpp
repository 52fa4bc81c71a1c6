#include "core/twips_canvas.h"
#include "platform/headless/raster_canvas.h"
#include "tabs_test_fixture.h"
#include <map>

namespace tolva::testing {
namespace {

const ColorRef ButtonFace = headless::RasterCanvas(1, 1).SystemColor(SystemColorIndex(SystemColor::ButtonFace));
constexpr ColorRef ButtonText = 0x000000;
constexpr ColorRef Border = 0x8C969C;
constexpr ColorRef Inactive = 0xCEDBDE;
constexpr ColorRef Behind = 0xFFFFFF;

// The window as rows of characters, one per pixel: '#' outline, '=' the folder's colour, '-' an
// inactive tab, '.' behind the tabs, 't' text, '?' anything else.
std::vector<std::string> Picture(const headless::HeadlessSurface& surface)
{
    const std::map<ColorRef, char> legend { { Border, '#' }, { ButtonFace, '=' }, { Inactive, '-' }, { Behind, '.' },
        { ButtonText, 't' } };
    const headless::RasterCanvas& image = surface.WindowImage();
    std::vector<std::string> rows;
    for (int32_t y = 0; y < image.Height(); ++y) {
        std::string row;
        for (int32_t x = 0; x < image.Width(); ++x) {
            const auto found = legend.find(image.Pixel(x, y));
            row += found != legend.end() ? found->second : '?';
        }
        rows.push_back(row);
    }
    return rows;
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
    const std::vector<std::string> expected {
        "##########",
        "#========#",
        "#========#",
        "#========#",
        "#========#",
        "##########",
    };
    EXPECT_EQ(Picture(surface), expected);
}

// Two tabs of 20 pixels and a gap of 5 over a folder, the second selected: it is filled with the
// folder's colour and opens into it through the folder's top edge.
TEST_F(TabsTest, TheSelectedTabOpensIntoTheFolder)
{
    surface.Resize(825, 360);
    tabs.SetTabWidth(300);
    AddTabs({ u"", u"" });
    tabs.SetSelectedItem(2);
    const std::string inactiveRow = "#-------------------#....#===================#.........";
    std::vector<std::string> expected { "#####################....#####################........." };
    expected.insert(expected.end(), 13, inactiveRow);
    expected.push_back("##########################===================##########");
    expected.insert(expected.end(), 8, "#=====================================================#");
    expected.push_back(std::string(55, '#'));
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
