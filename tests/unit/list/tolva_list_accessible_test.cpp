#include "tests/unit/list/list_test_fixture.h"
#include "tests/unit/support/accessible_printing.h"

namespace tolva::testing {
namespace {

using namespace AccessibleState;
using enum AccessibleEvent;

TEST_F(ListTest, OneColumnIsAListOfItemsAndMoreATableOfRowsAndCells)
{
    site.extenderName = u"lstPeople";
    Fill(1, 12);
    list.SetListIndex(2);
    EXPECT_EQ(list.Describe(), (AccessibleDescription { u"lstPeople", AccessibleRole::List, Focusable, u"r2c1", u"", u"", {} }));
    EXPECT_EQ(list.Child(1)->Describe(),
        (AccessibleDescription { u"r2c1", AccessibleRole::ListItem, Selectable | Selected, u"", u"", u"", { 0, 33, 80, 49 } }));
    EXPECT_EQ(list.Child(1)->ChildCount(), 0);
    EXPECT_EQ(list.Child(11)->Describe().state, Selectable | Offscreen);

    list.ColumnClear();
    Fill(3, 2);
    surface.SetFocus();
    const AccessibleDescription table = list.Describe();
    EXPECT_EQ(table.role, AccessibleRole::Table);
    EXPECT_EQ(table.value, u"r2c1, r2c2, r2c3");
    const auto row = list.Child(1);
    EXPECT_EQ(row->Describe(),
        (AccessibleDescription {
            u"r2c1, r2c2, r2c3", AccessibleRole::Row, Selectable | Selected | Focused, u"", u"", u"", { 0, 33, 240, 49 } }));
    ASSERT_EQ(row->ChildCount(), 3);
    EXPECT_EQ(row->Child(1)->Describe(), (AccessibleDescription { u"r2c2", AccessibleRole::Cell, 0, u"", u"", u"", { 80, 33, 160, 49 } }));
    EXPECT_EQ(row->Child(3), nullptr);

    list.RemoveRow(2);
    EXPECT_FALSE(row->Exists());
}

// Selecting a row of a focused list moves the focus to it and makes it the selection, after
// SelectionChanged; an unfocused list only changes its selection.
TEST_F(ListTest, SelectingARowAnnouncesTheFocusThenTheSelection)
{
    Fill(2, 5);
    surface.TakeAnnouncements();
    EXPECT_TRUE(list.Child(3)->Select());
    surface.SetFocus();
    list.SetListIndex(2);
    EXPECT_EQ(events.log, (std::vector<std::string> { "SelectionChanged 4", "SelectionChanged 2" }));
    EXPECT_EQ(surface.TakeAnnouncements(), (Heard { { Selection, 3 }, { Focus, 3 }, { Focus, 1 }, { Selection, 1 } }));
    EXPECT_EQ(list.FocusedChild(), 1);
}

// Rows are made one at a time when asked for: however many rows there are, none is made until
// one is read. (A hundred thousand here: filling a million takes the sanitised build 14 s.)
TEST_F(ListTest, ManyRowsAreCountedAndReadWithoutMakingThemAll)
{
    list.AddColumn(u"Number");
    list.SetAutoRefresh(false);
    constexpr int32_t Rows = 100000;
    for (int32_t r = 1; r <= Rows; ++r)
        list.AddRow();
    list.SetRowText(Rows, 1, u"last");
    list.SetListIndex(Rows);
    EXPECT_EQ(list.ChildCount(), Rows);
    EXPECT_EQ(list.SelectedChild(), Rows - 1);
    EXPECT_EQ(list.Child(Rows - 1)->Describe().name, u"last");
    EXPECT_EQ(list.Child(Rows), nullptr);
}

} // namespace
} // namespace tolva::testing
