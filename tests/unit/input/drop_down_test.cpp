#include "input_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"

namespace tolva::testing {
namespace {

constexpr float StripLeft = 1260; // twips: the text box's width beside the button

class DropDownTest : public InputTest {
protected:
    // The strip's pixels (columns 84 to 95 of the client area) as text: '#' black, '.' the
    // given background, '?' anything else.
    std::vector<std::string> Strip(ColorRef background) const
    {
        std::vector<std::string> rows;
        for (int32_t y = 0; y < 15; ++y) {
            std::string row;
            for (int32_t x = 84; x < 96; ++x) {
                const ColorRef pixel = surface.WindowPixel(x, y);
                row += pixel == 0 ? '#' : pixel == background ? '.' : '?';
            }
            rows.push_back(row);
        }
        return rows;
    }
};

// The frame's right edge lies one pixel past the control, under its border.
TEST_F(DropDownTest, TheButtonIsAFramedDownwardTriangleInTheColourOfItsState)
{
    input.SetStyle(tkInputStyles::tkCombo);
    const std::vector<std::string> look = {
        "############",
        "#...........",
        "#...........",
        "#...........",
        "#...........",
        "#...........",
        "#...#####...",
        "#....###....",
        "#.....#.....",
        "#...........",
        "#...........",
        "#...........",
        "#...........",
        "#...........",
        "############",
    };
    EXPECT_EQ(Strip(0xCEDBDE), look);
    surface.MouseMove(0, 0, 1300, 100);
    EXPECT_EQ(Strip(0xDEE7EF), look);
    surface.MouseDown(1, 0, 1300, 100);
    EXPECT_EQ(Strip(0xBDCBCE), look);
}

// The strip's bounds count as inside, the text box's area does not.
TEST_F(DropDownTest, HoverTakesTheCaptureOverTheStripWithItsEdgesIncluded)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    const struct {
        float x, y;
        bool inside;
    } cases[] = {
        { StripLeft, 0, true },
        { 1440, 225, true },
        { StripLeft - 1, 100, false },
        { 1441, 100, false },
        { 1300, 226, false },
        { 1300, -1, false },
    };
    for (const auto& c : cases) {
        surface.MouseMove(0, 0, c.x, c.y);
        EXPECT_EQ(input.Mouse().hot, c.inside) << c.x << ", " << c.y;
        EXPECT_EQ(surface.HasCapture(), c.inside) << c.x << ", " << c.y;
    }
    EXPECT_EQ(events.log.size(), std::size(cases));
}

TEST_F(DropDownTest, ALeftReleaseClicksWhereverThePointerIs)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    surface.MouseMove(0, 0, 1300, 100);
    surface.MouseDown(1, 0, 1300, 100);
    surface.MouseUp(1, 0, 5000, 100);
    surface.MouseDown(2, 0, 1300, 100);
    surface.MouseUp(2, 0, 1300, 100);
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "MouseMove 0 0 1300 100", "MouseDown 1 0 1300 100", "Click",
            "MouseUp 1 0 5000 100", "MouseDown 2 0 1300 100", "MouseUp 2 0 1300 100" }));
    EXPECT_FALSE(input.Mouse().pushed);
    EXPECT_FALSE(input.Mouse().hot);
}

// F4 is a press at the strip's right end without a release: the button stays pushed.
TEST_F(DropDownTest, F4PressesTheButtonInEveryStyle)
{
    EXPECT_EQ(Box().Window().KeyDown(115, 0), 115);
    EXPECT_EQ(events.log, (std::vector<std::string> { "MouseDown 1 0 1425 0", "KeyDown 115 0" }));
    EXPECT_TRUE(input.Mouse().pushed);
    EXPECT_TRUE(factory.log.empty());
}

// The arrows step the selection without clamping, and the box never sees them.
TEST_F(DropDownTest, UpAndDownStepThroughTheItemsOfTheListStyle)
{
    input.SetStyle(tkInputStyles::tkCombo);
    AddItems({ u"Rent", u"Food" });
    EXPECT_EQ(Box().Window().KeyDown(40, 0), 0);
    EXPECT_EQ(input.Text(), u"Rent");
    Box().Window().KeyDown(40, 0);
    EXPECT_EQ(input.Text(), u"Food");
    EXPECT_EQ(RunTimeErrorOf([&] { Box().Window().KeyDown(40, 0); }), 380);
    Box().Window().KeyDown(38, 0);
    EXPECT_EQ(input.ListIndex(), 0);
    EXPECT_EQ(RunTimeErrorOf([&] { Box().Window().KeyDown(38, 0); }), 0);
    EXPECT_EQ(RunTimeErrorOf([&] { Box().Window().KeyDown(38, 0); }), 380);
    input.SetStyle(tkInputStyles::tkTextBox);
    EXPECT_EQ(Box().Window().KeyDown(40, 0), 40);
}

TEST_F(DropDownTest, TheCalendarIsToldItsDateThenSetUpThenShownBelowTheControl)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    input.SetText(u"03/20/2026");
    surface.MouseDown(1, 0, 1300, 100);
    const int32_t date = int32_t(OleDate::FromYmd(2026, 3, 20).Serial());
    EXPECT_EQ(factory.log,
        (std::vector<std::string> { "Calendar Load", "Calendar Move 2250 4785", "Calendar SetParent",
            "Calendar SetDate " + std::to_string(date), "Calendar SetCurrentDate " + std::to_string(date),
            "Calendar Setup", "Calendar Show" }));
    EXPECT_EQ(factory.calendar->Parent(), &input);
    EXPECT_EQ(input.TextInput().Tag(), u"03/20/2026");

    // Text that is no date opens the calendar on today.
    factory.calendar->visible = false;
    input.SetText(u"soon");
    surface.MouseDown(1, 0, 1300, 100);
    EXPECT_EQ(factory.calendar->Date(), formatter.today);
}

// Near the right edge the pop-up is right-aligned with the control; near the bottom it opens
// above it (the test leaves the control's height out).
TEST_F(DropDownTest, ThePopupStaysOnTheScreen)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    const struct {
        PixelPoint origin;
        float left, top;
    } cases[] = {
        { { 150, 300 }, 2250, 4785 },
        { { 850, 300 }, 11250, 4785 }, // 12750 + 3000 > 15360: right-aligned
        { { 824, 300 }, 12360, 4785 }, // ends at the edge
        { { 150, 608 }, 2250, 9405 }, // 9120 + 2400 = 11520: still below
        { { 150, 609 }, 2250, 6735 }, // above: 9135 - 2400
    };
    for (const auto& c : cases) {
        surface.SetScreenOrigin(c.origin);
        surface.MouseDown(1, 0, 1300, 100);
        EXPECT_EQ(factory.calendar->left, c.left) << c.origin.x;
        EXPECT_EQ(factory.calendar->top, c.top) << c.origin.y;
        factory.calendar->visible = false;
    }
}

// Pressing again hides the pop-up and takes what it shows.
TEST_F(DropDownTest, ASecondPressClosesThePopupAndAccepts)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    surface.MouseDown(1, 0, 1300, 100);
    factory.calendar->date = OleDate::FromYmd(2026, 4, 1);
    factory.log.clear();
    surface.MouseDown(1, 0, 1300, 100);
    EXPECT_EQ(factory.log, (std::vector<std::string> { "Calendar Hide", "Calendar Unload" }));
    EXPECT_EQ(input.Text(), u"mm/dd/yyyy(4/1/2026)");
}

// 25 items open ten rows high with the scroll bar, ten items without it; a selection below the
// rows that show scrolls the list box first.
TEST_F(DropDownTest, TheListIsSizedFromTheItemsAndScrolledToTheSelection)
{
    input.SetStyle(tkInputStyles::tkCombo);
    headless::RasterCanvas measure(1, 1);
    const int32_t blank = measure.MeasureText(u" ", ToCanvasFont(input.GetFont())).height * 15;
    const int32_t height = 10 * blank + 60;
    const int32_t rows = height / (blank + 30);
    for (int32_t count : { 10, 25 }) {
        while (input.ListCount() < count)
            input.AddItem(u"item");
        input.SetListIndex(int16_t(count - 1));
        factory.log.clear();
        surface.MouseDown(1, 0, 1300, 100);
        const int32_t top = count - 1 >= rows ? count - 1 - rows + 1 : 1;
        std::erase(factory.log, "List Load");
        EXPECT_EQ(factory.log,
            (std::vector<std::string> { "List Resize 2880 " + std::to_string(height),
                "List Move 2250 4785", "List SetParent", "List SetList", "List SetTopIndex " + std::to_string(top),
                count > 10 ? "List ScrollBar shown" : "List ScrollBar hidden",
                "List SetSelectedItem " + std::to_string(count), "List Setup", "List Show" }));
        EXPECT_EQ(factory.list->list, &input.Items());
        EXPECT_EQ(input.Items().Tag(), Variant(count - 1).ToString());
        factory.list->visible = false;
    }
}

// Opening one pop-up unloads the others; hiding the control unloads every one; a control going
// away unloads the one it owns.
TEST_F(DropDownTest, PopupsAreUnloadedWithTheirOwner)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    surface.MouseDown(1, 0, 1300, 100);
    input.SetStyle(tkInputStyles::tkCombo);
    factory.log.clear();
    surface.MouseDown(1, 0, 1300, 100);
    EXPECT_EQ(factory.log.at(0), "Calendar Unload");
    EXPECT_EQ(factory.log.at(1), "List Load");
    factory.log.clear();
    surface.Hide();
    EXPECT_EQ(factory.log, std::vector<std::string> { "List Unload" });
    {
        headless::HeadlessSurface other { tree };
        TolvaInput second { other, site };
        second.InitProperties();
        second.SetStyle(tkInputStyles::tkCombo);
        other.MouseDown(1, 0, 1300, 100);
        factory.log.clear();
    }
    EXPECT_EQ(factory.log, std::vector<std::string> { "List Unload" });
}

} // namespace
} // namespace tolva::testing
