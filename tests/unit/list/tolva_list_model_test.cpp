#include "list_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"
#include <algorithm>

namespace tolva {
namespace {

constexpr int32_t RowTextError = int32_t(0x800455F1);

std::vector<std::string> Rows(const TolvaList& list, int32_t column)
{
    std::vector<std::string> texts;
    for (int32_t r = 1; r <= list.RowCount(); ++r)
        texts.push_back(ToUtf8(list.RowText(r, column)));
    return texts;
}

TEST_F(ListTest, AddRowSetsNewIndexByItsOwnRule)
{
    Fill(2, 5);
    struct Case {
        int32_t before;
        int32_t newIndex;
        int32_t placedAt;
    };
    // -1 names the new last row; any other value is kept, also when the row was appended.
    const Case cases[] = { { 2, 2, 2 }, { 0, 0, 7 }, { 99, 99, 8 }, { -1, 9, 9 }, { 1, 1, 1 } };
    for (const Case& c : cases) {
        list.AddRow(c.before);
        list.SetRowText(c.placedAt, 1, u"new");
        EXPECT_EQ(list.NewIndex(), c.newIndex) << c.before;
    }
    EXPECT_EQ(Rows(list, 1),
        (std::vector<std::string> { "new", "r1c1", "new", "r2c1", "r3c1", "r4c1", "r5c1", "new", "new", "new" }));
    EXPECT_EQ(Cell(3, 2), ""); // the inserted row is there in every column
    EXPECT_EQ(Cell(4, 2), "r2c2");
}

// A column added while rows exist gets one item more than there are rows, a spare that the
// checked read never reaches but an unchecked write does, and the next row then takes it.
TEST_F(ListTest, AColumnAddedToRowsHasASpareCell)
{
    Fill(3, 3);
    list.AddColumn(u"Fourth");
    EXPECT_EQ(list.ColumnAlignment(4), tkColumnAlignment::tkColumnLeft);
    EXPECT_EQ(list.ColumnWidth(4), 1200);
    EXPECT_EQ(Cell(3, 4), "");
    try {
        list.RowText(4, 4);
        ADD_FAILURE() << "row 4 is past RowCount";
    } catch (const AutomationError& e) {
        EXPECT_EQ(e.HResult(), RowTextError);
        EXPECT_EQ(e.Source(), u"RowText");
        EXPECT_EQ(e.Description(), u"Subscript Out Of Range");
    }
    list.SetRowText(4, 4, u"spare");
    // The hidden column has no spare.
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetRowText(4, 0, u"x"); }), RunTimeError::SubscriptOutOfRange);
    list.AddRow();
    EXPECT_EQ(Cell(4, 4), "spare");
}

TEST_F(ListTest, RowTextChecksItsIndicesAsNumbers)
{
    Fill(2, 3);
    const Variant outside[][2] = { { int32_t(0), int32_t(1) }, { int32_t(1), int32_t(0) }, { int32_t(4), int32_t(1) },
        { int32_t(1), int32_t(3) }, { 1e30, int32_t(1) }, { Variant(), int32_t(1) }, { int32_t(-1), int32_t(1) } };
    for (const auto& index : outside) {
        try {
            list.RowText(index[0], index[1]);
            ADD_FAILURE();
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.HResult(), RowTextError);
        }
    }
    EXPECT_EQ(ToUtf8(list.RowText(int16_t(2), 2.0)), "r2c2");
    EXPECT_EQ(ToUtf8(list.RowText(int32_t(3), u"2")), "r3c2"); // a numeric text indexes the column array
    // The row is a collection index, where a text is a key; a text that is no number is no index.
    EXPECT_EQ(RunTimeErrorOf([&] { list.RowText(u"2", int32_t(1)); }), RunTimeError::InvalidProcedureCall);
    EXPECT_EQ(RunTimeErrorOf([&] { list.RowText(u"two", int32_t(1)); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([&] { list.RowText(Font {}, int32_t(1)); }), RunTimeError::TypeMismatch);
    // The setter checks nothing of its own: the array and the collection do.
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetRowText(1, 3, u"x"); }), RunTimeError::SubscriptOutOfRange);
    list.SetRowText(1, 0, u"hidden");
}

TEST_F(ListTest, RowDataIsAWholeNumberPerRowThatMovesWithItsRow)
{
    Fill(1, 3);
    list.SetRowData(2, 2.5); // rounded half to even
    list.SetRowData(3, u"-7");
    EXPECT_EQ(list.RowData(2), Variant(int32_t(2)));
    list.AddRow(1);
    EXPECT_EQ(list.RowData(3), Variant(int32_t(2)));
    list.RemoveRow(3);
    EXPECT_EQ(list.RowData(3), Variant(int32_t(-7)));
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetRowData(1, u"x"); }), RunTimeError::TypeMismatch);
    EXPECT_EQ(RunTimeErrorOf([&] { list.RowData(9); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_EQ(std::count(site.propertyChanges.begin(), site.propertyChanges.end(), u"RowData"), 2);
}

// RemoveColumn shifts the cells only: the count and the captions stay, and the last column
// has no cells any more, which the next read and the next row run into.
TEST_F(ListTest, RemoveColumnMovesOnlyTheCells)
{
    Fill(3, 2);
    ClearLogs();
    const int presents = surface.PresentCount();
    list.RemoveColumn(2);
    EXPECT_EQ(list.ColumnCount(), 3);
    EXPECT_EQ(ToUtf8(list.ColumnText(2)), "Column 2");
    EXPECT_EQ(Cell(1, 2), "r1c3");
    EXPECT_EQ(RunTimeErrorOf([&] { list.RowText(1, 3); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_TRUE(site.propertyChanges.empty());
    EXPECT_EQ(surface.PresentCount(), presents);
    // The row is added to the columns before the released one, then the error stops it.
    EXPECT_EQ(RunTimeErrorOf([&] { list.AddRow(); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_EQ(list.RowCount(), 2);
    EXPECT_EQ(RunTimeErrorOf([&] { list.RemoveColumn(-1); }), RunTimeError::SubscriptOutOfRange);
}

// ColumnClear keeps the column arrays: a new first column overwrites caption, alignment and
// width but keeps the old format; the arrays shrink to one column then.
TEST_F(ListTest, ColumnClearKeepsTheColumnArrays)
{
    list.AddColumn(u"Date", tkColumnAlignment::tkColumnLeft, 1500);
    list.AddColumn(u"Amount", tkColumnAlignment::tkColumnRight, 1300);
    list.SetColumnFormat(1, u"dd/mm/yyyy");
    list.SetColumnFormat(2, u"0.00");
    list.AddRow();
    list.SetListIndex(1);
    list.ColumnClear();
    EXPECT_EQ(list.ColumnCount(), 0);
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.ListIndex(), 1); // not touched
    EXPECT_EQ(ToUtf8(list.ColumnText(2)), "Amount");
    list.AddColumn(u"Text");
    EXPECT_EQ(ToUtf8(list.ColumnText(1)), "Text");
    EXPECT_EQ(list.ColumnWidth(1), 1200);
    EXPECT_EQ(ToUtf8(list.ColumnFormat(1)), "dd/mm/yyyy");
    EXPECT_EQ(RunTimeErrorOf([&] { list.ColumnText(2); }), RunTimeError::SubscriptOutOfRange);
    list.AddColumn(u"Second");
    EXPECT_EQ(ToUtf8(list.ColumnFormat(2)), "");
}

TEST_F(ListTest, ClearDropsTheRowsAndTheSelectionButKeepsColumnsAndTopIndex)
{
    Fill(2, 30);
    list.SetListIndex(20);
    const int32_t top = list.TopIndex();
    ASSERT_GT(top, 1);
    list.Clear();
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.TopIndex(), top);
    EXPECT_EQ(list.ColumnCount(), 2);
    EXPECT_EQ(ToUtf8(list.ColumnText(2)), "Column 2");
    EXPECT_FALSE(BarWindow().Visible());
    list.AddRow();
    EXPECT_EQ(Cell(1, 2), "");
}

TEST_F(ListTest, RemoveRowPullsTheSelectionBackWithoutAnEvent)
{
    Fill(1, 3);
    list.SetListIndex(3);
    ClearLogs();
    list.RemoveRow(2);
    EXPECT_EQ(list.ListIndex(), 2);
    EXPECT_EQ(Rows(list, 1), (std::vector<std::string> { "r1c1", "r3c1" }));
    EXPECT_TRUE(events.log.empty());
    // Outside the rows the hidden column refuses first and nothing goes.
    EXPECT_EQ(RunTimeErrorOf([&] { list.RemoveRow(3); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_EQ(list.RowCount(), 2);
}

TEST_F(ListTest, ListIndexIsClampedAndAnnouncedOnlyWhenItChanges)
{
    struct Case {
        int32_t rows;
        int32_t assigned;
        int32_t selected;
    };
    // Without rows, anything from 1 up clamps to 0, which is no change after Clear.
    const Case cases[] = { { 10, 0, 1 }, { 10, 1000, 10 }, { 10, -5, 1 }, { 0, 3, 0 }, { 0, 0, 1 } };
    for (const Case& c : cases) {
        list.ColumnClear();
        list.Clear();
        for (int32_t r = 0; r < c.rows; ++r)
            list.AddRow();
        ClearLogs();
        list.SetListIndex(c.assigned);
        EXPECT_EQ(list.ListIndex(), c.selected) << c.assigned;
        std::vector<std::string> announced;
        if (c.selected != 0)
            announced.push_back("SelectionChanged " + std::to_string(c.selected));
        EXPECT_EQ(events.log, announced);
        list.SetListIndex(c.assigned);
        EXPECT_EQ(events.log, announced) << "assigning the same row again is silent";
    }
}

TEST_F(ListTest, RowHeightHasAFloorOf90Twips)
{
    list.SetRowHeight(50);
    EXPECT_EQ(list.RowHeight(), 90);
    list.SetRowHeight(300);
    EXPECT_EQ(list.RowHeight(), 300);
}

// 2400 twips less the header, in rows of 240 twips, plus a row shown in part.
TEST_F(ListTest, VisibleRowsCountsAPartlyShownRow)
{
    const int32_t header = list.HeaderHeight();
    EXPECT_GT(header, 75);
    EXPECT_EQ(list.VisibleRows(), (2400 - header) / 240 + 1);
    list.SetShowColumnHeaders(false);
    EXPECT_EQ(list.HeaderHeight(), 0);
    EXPECT_EQ(list.VisibleRows(), 11);
    Font big = list.GetFont();
    big.size = 20;
    list.SetFont(big);
    list.SetShowColumnHeaders(true);
    EXPECT_GT(list.HeaderHeight(), header);
}

// The scroll bar shows once the rows fill the body, its range leaving the last page on screen
// and its page as long as the visible rows. It takes these through its own checked setters: a
// range of one row (Max 1 = Min) and a page longer than the range are refused, and a new Max
// caps the page at the range.
TEST_F(ListTest, TheScrollRangeFollowsTheRows)
{
    const int32_t visible = list.VisibleRows();
    Fill(1, visible - 1);
    EXPECT_FALSE(BarWindow().Visible());
    list.AddRow();
    EXPECT_TRUE(BarWindow().Visible());
    EXPECT_EQ(Bar().Max(), 100);
    list.AddRow();
    EXPECT_EQ(Bar().Max(), 2);
    EXPECT_EQ(Bar().LargeChange(), 1);
    EXPECT_EQ(Bar().Value(), 1);
    for (int i = 0; i < 50; ++i)
        list.AddRow();
    EXPECT_EQ(Bar().Max(), list.RowCount() - visible + 1);
    EXPECT_EQ(Bar().LargeChange(), visible);
    list.SetListIndex(list.RowCount() - 5);
    EXPECT_EQ(list.TopIndex(), list.RowCount() - 5 - visible + 2);
    EXPECT_EQ(Bar().Value(), list.TopIndex());
    // The last row puts TopIndex one past the bar's range, which the bar refuses.
    list.SetListIndex(list.RowCount());
    EXPECT_EQ(list.TopIndex(), Bar().Max() + 1);
    EXPECT_EQ(Bar().Value(), Bar().Max() - 4);
    list.RemoveRow(1);
    EXPECT_EQ(Bar().Max(), list.RowCount() - visible + 1);
}

// A selected row is kept on the fully visible rows: moving above TopIndex makes it the top,
// moving onto the last, partly shown row scrolls by one.
TEST_F(ListTest, TheSelectionIsScrolledIntoView)
{
    Fill(1, 100);
    const int32_t visible = list.VisibleRows();
    list.SetListIndex(visible - 1);
    EXPECT_EQ(list.TopIndex(), 1);
    list.SetListIndex(visible);
    EXPECT_EQ(list.TopIndex(), 2);
    list.SetListIndex(50);
    EXPECT_EQ(list.TopIndex(), 50 - visible + 2);
    list.SetListIndex(10);
    EXPECT_EQ(list.TopIndex(), 10);
    EXPECT_EQ(Bar().Value(), 10);
}

// TopIndex is stored as given: below 1 the next repaint reads a row that is not there.
TEST_F(ListTest, TopIndexIsNotClamped)
{
    Fill(1, 3);
    list.SetTopIndex(2);
    EXPECT_EQ(list.TopIndex(), 2);
    try {
        list.SetTopIndex(0);
        ADD_FAILURE();
    } catch (const AutomationError& e) {
        EXPECT_EQ(e.HResult(), RowTextError);
    }
    EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(ListTest, SettersNotifyUnderTheirNames)
{
    Fill(1, 1);
    ClearLogs();
    list.SetColumnText(1, u"A");
    list.SetColumnAlignment(1, 7); // stored without a check
    list.SetColumnFormat(1, u"0");
    list.SetColumnWidth(1, -100);
    list.SetRowText(1, 1, u"x");
    list.SetRowHeight(200);
    list.SetTopIndex(1);
    list.SetListIndex(1);
    list.SetGridStyle(tkGridStyles::tkBalance);
    const std::vector<String> expected { u"ColumnText", u"ColumnAlignment", u"ColumnFormat", u"ColumnWidth", u"RowText",
        u"RowHeight", u"TopIndex", u"ListIndex", u"GridStyle" };
    EXPECT_EQ(site.propertyChanges, expected);
    EXPECT_EQ(list.ColumnAlignment(1), 7);
    EXPECT_EQ(list.ColumnWidth(1), -100);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetColumnWidth(2, 1); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetBorderStyle(2); }), RunTimeError::InvalidPropertyValue);
}

} // namespace
} // namespace tolva
