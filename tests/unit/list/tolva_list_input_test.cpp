#include "list_test_fixture.h"

namespace tolva {
namespace {

constexpr int16_t Left = 1;
constexpr int16_t Right = 2;

class ListInputTest : public ListTest {
protected:
    ListInputTest()
    {
        Fill(1, 100);
        header = float(list.HeaderHeight());
        ClearLogs();
    }
    // Y of the middle of the n-th row on screen, from 0.
    float RowY(int n) const { return header + 240 * n + 120; }

    float header = 0;
};

TEST_F(ListInputTest, ALeftPressTakesTheFocusAndSelectsTheRowUnderThePointer)
{
    list.SetTopIndex(5);
    ClearLogs();
    surface.MouseDown(Left, 0, 300, RowY(2));
    EXPECT_TRUE(surface.HasFocus());
    EXPECT_EQ(list.ListIndex(), 7);
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "SelectionChanged 7", MouseEventText("MouseDown", Left, 0, 300, RowY(2)) }));
}

// No hit test but Y: the header less than a row above the first row gives TopIndex, a row past
// the last one is clamped by ListIndex.
TEST_F(ListInputTest, PressesOutsideTheRowsStillNameARow)
{
    list.SetTopIndex(5);
    surface.MouseDown(Left, 0, 10, header - 100);
    EXPECT_EQ(list.ListIndex(), 5);
    surface.MouseDown(Left, 0, 10, header - 300);
    EXPECT_EQ(list.ListIndex(), 4);
    list.SetTopIndex(98);
    surface.MouseDown(Left, 0, 10, RowY(5));
    EXPECT_EQ(list.ListIndex(), 100);
}

// Other buttons select nothing; clicks are forwarded.
TEST_F(ListInputTest, OtherButtonsSelectNothing)
{
    surface.MouseDown(Right, 0, 10, RowY(3));
    surface.Click();
    surface.DblClick();
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_FALSE(surface.HasFocus());
    EXPECT_EQ(events.log,
        (std::vector<std::string> { MouseEventText("MouseDown", Right, 0, 10, RowY(3)), "Click", "DblClick" }));
}

// Dragging with the left button selects the row under the pointer only with SelectionTracking,
// and then every move is a press again.
TEST_F(ListInputTest, DraggingTracksTheSelectionOnlyWhenAskedTo)
{
    surface.MouseDown(Left, 0, 10, RowY(0));
    surface.MouseMove(Left, 0, 10, RowY(2));
    EXPECT_EQ(list.ListIndex(), 1);

    list.SetSelectionTracking(true);
    ClearLogs();
    surface.MouseMove(Left, 0, 10, RowY(2));
    surface.MouseMove(Left, 0, 10, RowY(2) + 50);
    surface.MouseMove(Left | Right, 0, 10, RowY(4)); // not the left button alone
    const std::vector<std::string> expected { "SelectionChanged 3", MouseEventText("MouseDown", Left, 0, 10, RowY(2)),
        MouseEventText("MouseMove", Left, 0, 10, RowY(2)), MouseEventText("MouseDown", Left, 0, 10, RowY(2) + 50),
        MouseEventText("MouseMove", Left, 0, 10, RowY(2) + 50), MouseEventText("MouseMove", Left | Right, 0, 10, RowY(4)) };
    EXPECT_EQ(events.log, expected);
    surface.MouseUp(Left, 0, 10, RowY(4));
    EXPECT_EQ(events.log.back(), MouseEventText("MouseUp", Left, 0, 10, RowY(4)));
}

// The keys move the selection by the table, a page being the scroll bar's page; the client
// hears KeyDown afterwards with the key as it was.
TEST_F(ListInputTest, KeysMoveTheSelection)
{
    const int32_t page = Bar().LargeChange();
    ASSERT_EQ(page, list.VisibleRows());
    struct Case {
        int32_t from;
        int16_t key;
        int32_t to;
    };
    const Case cases[] = { { 95, 34, 100 }, { 50, 34, 50 + page }, { 50, 33, 50 - page }, { 3, 33, 1 },
        { 50, 35, 100 }, { 50, 36, 1 }, { 50, 38, 49 }, { 1, 38, 1 }, { 50, 40, 51 }, { 100, 40, 100 }, { 50, 37, 50 },
        { 50, 39, 50 }, { 50, 13, 50 } };
    for (const Case& c : cases) {
        list.SetListIndex(c.from);
        ClearLogs();
        EXPECT_EQ(surface.KeyDown(c.key, 1), c.key);
        EXPECT_EQ(list.ListIndex(), c.to) << c.key << " from " << c.from;
        std::vector<std::string> expected;
        if (c.to != c.from)
            expected.push_back("SelectionChanged " + std::to_string(c.to));
        expected.push_back("KeyDown " + std::to_string(c.key) + " 1");
        EXPECT_EQ(events.log, expected);
    }
    ClearLogs();
    surface.KeyPress(65);
    surface.KeyUp(40, 0);
    EXPECT_EQ(events.log, (std::vector<std::string> { "KeyPress 65", "KeyUp 40 0" }));
}

// The list follows its scroll bar: an arrow press (Change) and a dragged slider (Scroll) move
// TopIndex, never the selection.
TEST_F(ListInputTest, TheListFollowsItsScrollBar)
{
    list.SetListIndex(3);
    headless::HeadlessSurface& down = *BarWindow().Children().at(1);
    headless::HeadlessSurface& slider = *BarWindow().Children().at(2);
    down.MouseDown(Left, 0, 10, 10);
    down.MouseUp(Left, 0, 10, 10);
    EXPECT_EQ(list.TopIndex(), 2);
    EXPECT_EQ(Bar().Value(), 2);

    std::vector<int32_t> tops;
    slider.MouseDown(Left, 0, 10, 10);
    for (int step = 1; step <= 4; ++step) {
        slider.MouseMove(Left, 0, 10, 10 + 150 * step);
        tops.push_back(list.TopIndex());
    }
    slider.MouseUp(Left, 0, 10, 10);
    EXPECT_EQ(list.TopIndex(), Bar().Value());
    EXPECT_TRUE(std::is_sorted(tops.begin(), tops.end()));
    EXPECT_GT(tops.back(), 10);
    EXPECT_EQ(list.ListIndex(), 3);
}

} // namespace
} // namespace tolva
