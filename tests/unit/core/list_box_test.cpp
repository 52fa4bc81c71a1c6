#include "core/list_box.h"
#include "tests/unit/core/run_time_error_of.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

std::vector<String> Items(const ListBox& list)
{
    std::vector<String> items;
    for (int32_t i = 0; i < list.ListCount(); ++i)
        items.push_back(list.List(i));
    return items;
}

TEST(ListBox, ASortedListPlacesItemsIgnoringCaseAfterEqualOnes)
{
    ListBox list(true);
    for (const char16_t* item : { u"pear", u"Apple", u"fig", u"apple" })
        list.AddItem(item);
    EXPECT_EQ(Items(list), (std::vector<String> { u"Apple", u"apple", u"fig", u"pear" }));
    EXPECT_EQ(list.NewIndex(), 1);
    list.AddItem(u"zz", 0); // an index given wins over the order
    EXPECT_EQ(list.List(0), u"zz");
}

TEST(ListBox, TheSelectionStaysOnItsItem)
{
    ListBox list;
    list.AddItem(u"a");
    list.AddItem(u"b");
    list.SetListIndex(1);
    list.AddItem(u"first", 0);
    EXPECT_EQ(list.ListIndex(), 2);
    list.RemoveItem(0);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(list.NewIndex(), -1);
    list.RemoveItem(1);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST(ListBox, IndexesOutsideTheItemsAreRefused)
{
    ListBox list;
    list.AddItem(u"a");
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetListIndex(1); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetListIndex(-2); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetListIndex(-1); }), 0);
    EXPECT_EQ(RunTimeErrorOf([&] { list.RemoveItem(1); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetTopIndex(1); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { list.SetList(2, u"x"); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { list.AddItem(u"x", 3); }), 5);
    EXPECT_EQ(list.List(5), u"");
    EXPECT_EQ(list.List(-1), u"");
    list.SetList(1, u"appended");
    EXPECT_EQ(Items(list), (std::vector<String> { u"a", u"appended" }));
}

} // namespace
} // namespace tolva
