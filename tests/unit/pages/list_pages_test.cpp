#include "pages/leading_number.h"
#include "pages/ppg_columns.h"
#include "pages/ppg_scroll.h"
#include "pages/ppg_tabs.h"
#include "tests/unit/pages/page_test_fixture.h"

namespace tolva {

using ScrollPageTest = PageTest<ppgScroll>;

// The five boxes are applied SmallChange, LargeChange, Max, Min, Value against the range live at
// each step: a new Max first lets a larger Min in, and a Min above the new Max is refused
// silently at design time.
TEST_F(ScrollPageTest, AppliesInOrderAgainstTheLiveRange)
{
    struct Case {
        const char16_t* min;
        const char16_t* max;
        const char16_t* value;
        int32_t expectedMin, expectedMax, expectedValue;
    };
    for (const Case& c : { Case { u"10", u"20", u"15", 10, 20, 15 }, Case { u"30", u"20", u"15", 1, 20, 15 } }) {
        DesignedControl<TolvaScroll> placed(tree);
        TolvaScroll& scroll = placed.control;
        Select(scroll);
        EXPECT_EQ(page.Box(3).Text(), u"1");
        page.Box(2).SetText(c.max);
        page.Box(3).SetText(c.min);
        page.Box(4).SetText(c.value);
        page.Apply();
        EXPECT_EQ(scroll.Min(), c.expectedMin);
        EXPECT_EQ(scroll.Max(), c.expectedMax);
        EXPECT_EQ(scroll.Value(), c.expectedValue);
        EXPECT_TRUE(placed.site.messageBoxes.empty());
    }
}

using TabsPageTest = PageTest<ppgTabs>;

// The rows are the tab captions; Add goes before the selected row or last; the arrows move a row
// without marking the page; Apply rebuilds the tabs, so their data goes back to 0.
TEST_F(TabsPageTest, EditsTheCaptionsAndRebuildsTheTabs)
{
    TolvaTabs& tabs = NewControl<TolvaTabs>();
    tabs.Clear();
    tabs.AddItem(u"One");
    tabs.AddItem(u"Two");
    tabs.SetTabData(2, 7);
    Select(tabs);
    RowEditor& rows = page.Rows();
    const auto captions = [&] {
        std::vector<String> all;
        for (int32_t i = 1; i <= rows.List().RowCount(); ++i)
            all.push_back(rows.List().RowText(i, 1));
        return all;
    };
    EXPECT_EQ(captions(), (std::vector<String> { u"One", u"Two" }));

    page.txtTabText().SetText(u"Last");
    ClickOn(rows.AddButton());
    EXPECT_TRUE(page.txtTabText().Text().empty());
    rows.List().SetListIndex(2);
    page.txtTabText().SetText(u"Before two");
    ClickOn(rows.AddButton());
    EXPECT_EQ(captions(), (std::vector<String> { u"One", u"Before two", u"Two", u"Last" }));

    page.SetChanged(false);
    rows.List().SetListIndex(1);
    ClickOn(rows.DownArrow());
    EXPECT_EQ(rows.List().ListIndex(), 2);
    EXPECT_FALSE(page.Changed());
    page.txtTabWidth().SetText(u"900");
    page.Apply();

    EXPECT_EQ(tabs.TabCount(), 4);
    EXPECT_EQ(tabs.Tabs(1), u"Before two");
    EXPECT_EQ(tabs.Tabs(2), u"One");
    EXPECT_EQ(tabs.TabData(3), 0);
    EXPECT_EQ(tabs.TabWidth(), 900);
}

using ColumnsPageTest = PageTest<ppgColumns>;

// The columns come in as rows; Add appends and resets the fields; an alignment word and a width
// that is not a number are applied as their values (0 for the width).
TEST_F(ColumnsPageTest, RebuildsTheColumns)
{
    TolvaList& list = NewControl<TolvaList>();
    list.AddColumn(u"Date", tkColumnAlignment::tkColumnCenter, 900);
    list.SetColumnFormat(1, u"mm/dd");
    Select(list);
    RowEditor& rows = page.Rows();
    EXPECT_EQ(rows.Row(1), (std::vector<String> { u"Date", u"900", u"Center" }));

    page.txtCaption().SetText(u"Amount");
    page.txtWidth().SetText(u"wide");
    page.txtAlignment().SetText(u"Right");
    ClickOn(rows.AddButton());
    EXPECT_EQ(page.txtWidth().Text(), u"1200");
    EXPECT_EQ(page.txtAlignment().Text(), u"Left");
    page.txtCaption().SetText(u"Memo");
    ClickOn(rows.AddButton());
    EXPECT_TRUE(page.Changed());
    page.Apply();

    ASSERT_EQ(list.ColumnCount(), 3);
    EXPECT_EQ(list.ColumnText(2), u"Amount");
    EXPECT_EQ(list.ColumnWidth(2), 0);
    EXPECT_EQ(list.ColumnAlignment(2), tkColumnAlignment::tkColumnRight);
    EXPECT_EQ(list.ColumnAlignment(1), tkColumnAlignment::tkColumnCenter);
    EXPECT_EQ(list.ColumnWidth(3), 1200);
    EXPECT_EQ(list.ColumnFormat(1), u"mm/dd");
}

// Every row removed and applied: the list is left with no columns.
TEST_F(ColumnsPageTest, AnEmptyListLeavesNoColumns)
{
    TolvaList& list = NewControl<TolvaList>();
    list.AddColumn(u"A");
    list.AddColumn(u"B");
    Select(list);
    for (int i = 0; i < 2; ++i) {
        page.Rows().List().SetListIndex(1);
        ClickOn(page.Rows().RemoveButton());
    }
    page.Apply();
    EXPECT_EQ(list.ColumnCount(), 0);
}

TEST(LeadingNumber, ReadsTheNumberATextStartsWith)
{
    const std::pair<const char16_t*, double> cases[] = {
        { u"1200", 1200 }, { u"  -15.5px", -15.5 }, { u"2e3", 2000 }, { u"7e", 7 }, { u"wide", 0 }, { u"", 0 }, { u".5", 0.5 },
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(LeadingNumber(text), expected) << ToUtf8(text);
}

} // namespace tolva
