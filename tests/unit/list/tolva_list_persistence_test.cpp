#include "core/memory_property_bag.h"
#include "list_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"

namespace tolva {
namespace {

using Operation = MemoryPropertyBag::Operation;
using OperationKind = MemoryPropertyBag::OperationKind;

std::vector<Operation> WithArrays(OperationKind kind, const Variant& fontDefault, int32_t columns)
{
    std::vector<Operation> operations { { kind, u"Enabled", true }, { kind, u"Font", fontDefault },
        { kind, u"BorderStyle", int16_t(0) }, { kind, u"BackColorHeader", OleColor(14608367) },
        { kind, u"BackColorHighlight", OleColor(0xC6F3FF) }, { kind, u"BackColorRowA", OleColor(0xFFFFFF) },
        { kind, u"BackColorRowB", OleColor(0xEFF7F7) }, { kind, u"BorderColor", OleColor(11910854) },
        { kind, u"ColumnCount", int32_t(0) } };
    for (const char* name : { "ColumnAlignment", "ColumnFormat", "ColumnText", "ColumnWidth" }) {
        operations.push_back({ kind, FromUtf8(name) + u"Count", int32_t(0) });
        for (int32_t i = 1; i <= columns; ++i)
            operations.push_back({ kind, FromUtf8(name + std::to_string(i)), Variant() });
    }
    const std::vector<Operation> rest { { kind, u"ForeColorHeader", OleColor(0) },
        { kind, u"ForeColorHighlight", OleColor(0) }, { kind, u"ForeColorRowA", OleColor(0) },
        { kind, u"ForeColorRowB", OleColor(0) }, { kind, u"GridColor", OleColor(13553614) },
        { kind, u"RowCount", int32_t(0) }, { kind, u"RowHeight", int32_t(240) }, { kind, u"GridStyle", int32_t(1) },
        { kind, u"SelectionTracking", false }, { kind, u"ShowColumnHeaders", true }, { kind, u"AutoRefresh", true } };
    operations.insert(operations.end(), rest.begin(), rest.end());
    return operations;
}

TEST_F(ListTest, ANewListSavesNoColumnsAndEmptyArrays)
{
    MemoryPropertyBag bag;
    list.WriteProperties(bag);
    EXPECT_EQ(bag.Operations(), WithArrays(OperationKind::Write, Variant(), 0));
    // Only the font differs from its default (it has none).
    ASSERT_EQ(bag.Entries().size(), 1u);
    EXPECT_EQ(bag.Entries()[0].first, u"Font");
}

TEST_F(ListTest, ColumnsAreSavedAsFourArrays)
{
    list.AddColumn(u"Date", tkColumnAlignment::tkColumnLeft, 1200);
    list.AddColumn(u"Amount", tkColumnAlignment::tkColumnRight, 1500);
    MemoryPropertyBag bag;
    list.WriteProperties(bag);
    EXPECT_EQ(bag.Operations(), WithArrays(OperationKind::Write, Variant(), 2));
    const std::vector<std::pair<String, Variant>> saved { { u"Font", site.ambientFont }, { u"ColumnCount", 2 },
        { u"ColumnAlignmentCount", 2 }, { u"ColumnAlignment1", 0 }, { u"ColumnAlignment2", 1 },
        { u"ColumnFormatCount", 2 }, { u"ColumnFormat1", u"" }, { u"ColumnFormat2", u"" }, { u"ColumnTextCount", 2 },
        { u"ColumnText1", u"Date" }, { u"ColumnText2", u"Amount" }, { u"ColumnWidthCount", 2 },
        { u"ColumnWidth1", 1200 }, { u"ColumnWidth2", 1500 } };
    EXPECT_EQ(bag.Entries(), saved);
}

TEST_F(ListTest, ReadsItsKeysInTheSameOrderWithTheSameDefaults)
{
    MemoryPropertyBag bag;
    bag.Set(u"ColumnTextCount", int32_t(2));
    bag.Set(u"ColumnText2", u"Amount");
    list.ReadProperties(bag);
    std::vector<Operation> expected = WithArrays(OperationKind::Read, site.ambientFont, 0);
    expected.insert(expected.begin() + 12, { OperationKind::Read, u"ColumnText1", Variant() });
    expected.insert(expected.begin() + 13, { OperationKind::Read, u"ColumnText2", Variant() });
    EXPECT_EQ(bag.Operations(), expected);
    EXPECT_EQ(ToUtf8(list.ColumnText(1)), ""); // a missing element is empty
    EXPECT_EQ(ToUtf8(list.ColumnText(2)), "Amount");
}

// The arrays go out to their own bound, past ColumnCount after a ColumnClear; reloaded, the
// first new column takes the first slot but keeps its format.
TEST_F(ListTest, StaleColumnArraysTravelWithTheList)
{
    list.AddColumn(u"Date");
    list.AddColumn(u"Amount", tkColumnAlignment::tkColumnRight, 1500);
    list.SetColumnFormat(1, u"dd/mm/yyyy");
    list.ColumnClear();
    list.SetRowHeight(300);
    MemoryPropertyBag bag;
    list.WriteProperties(bag);
    EXPECT_EQ(bag.Find(u"ColumnCount"), nullptr); // 0, its default
    EXPECT_EQ(*bag.Find(u"ColumnText1"), Variant(u"Date"));

    headless::HeadlessSurface otherSurface { tree };
    TolvaList other { otherSurface, site };
    bag.Set(u"RowHeight", int32_t(50)); // stored as read, without the setter's floor
    other.ReadProperties(bag);
    EXPECT_EQ(other.RowHeight(), 50);
    EXPECT_EQ(other.ColumnCount(), 0);
    other.AddColumn(u"Text");
    EXPECT_EQ(ToUtf8(other.ColumnText(1)), "Text");
    EXPECT_EQ(other.ColumnAlignment(1), 0);
    EXPECT_EQ(other.ColumnWidth(1), 1200);
    EXPECT_EQ(ToUtf8(other.ColumnFormat(1)), "dd/mm/yyyy");
}

// A saved RowCount comes back without rows: loading succeeds, the first repaint fails on the
// empty column.
TEST_F(ListTest, ASavedRowCountRestoresNoRows)
{
    MemoryPropertyBag bag;
    bag.Set(u"ColumnCount", int32_t(1));
    bag.Set(u"RowCount", int32_t(3));
    headless::HeadlessSurface otherSurface { tree };
    TolvaList other { otherSurface, site };
    other.ReadProperties(bag);
    EXPECT_EQ(other.RowCount(), 3);
    EXPECT_EQ(RunTimeErrorOf([&] { otherSurface.Resize(3000, 2000); }), RunTimeError::SubscriptOutOfRange);
}

TEST_F(ListTest, ImpossibleCountsAreRefused)
{
    struct Case {
        const char16_t* key;
        int32_t count;
        int error;
    };
    const Case cases[] = { { u"ColumnCount", -1, RunTimeError::SubscriptOutOfRange },
        { u"ColumnCount", 1000000000, RunTimeError::OutOfMemory },
        { u"ColumnWidthCount", -2, RunTimeError::SubscriptOutOfRange },
        { u"ColumnTextCount", 2000000000, RunTimeError::OutOfMemory } };
    for (const Case& c : cases) {
        MemoryPropertyBag bag;
        bag.Set(c.key, c.count);
        headless::HeadlessSurface otherSurface { tree };
        TolvaList other { otherSurface, site };
        EXPECT_EQ(RunTimeErrorOf([&] { other.ReadProperties(bag); }), c.error) << ToUtf8(c.key);
    }
}

TEST_F(ListTest, InitPropertiesStartsOver)
{
    Fill(2, 5);
    list.SetListIndex(3);
    list.SetGridStyle(tkGridStyles::tkNone);
    site.ambientFont.name = u"Tahoma";
    list.InitProperties();
    EXPECT_EQ(list.ColumnCount(), 0);
    EXPECT_EQ(list.RowCount(), 0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_EQ(list.TopIndex(), 1);
    EXPECT_EQ(list.GridStyle(), tkGridStyles::tkGrid);
    EXPECT_EQ(ToUtf8(list.GetFont().name), "Tahoma");
    EXPECT_EQ(RunTimeErrorOf([&] { list.ColumnText(1); }), RunTimeError::SubscriptOutOfRange);
    list.AddRow();
    EXPECT_EQ(list.RowCount(), 1);
}

} // namespace
} // namespace tolva
