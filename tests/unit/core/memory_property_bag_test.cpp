#include "core/memory_property_bag.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

using Kind = MemoryPropertyBag::OperationKind;

TEST(MemoryPropertyBag, KeepsEntriesInTheOrderTheyWereFirstWritten)
{
    MemoryPropertyBag bag;
    bag.WriteProperty(u"BackColor", Variant(0x123456), Variant(0));
    bag.WriteProperty(u"Caption", Variant(u"OK"), Variant(u""));
    bag.WriteProperty(u"BackColor", Variant(0x654321), Variant(0));
    ASSERT_EQ(bag.Entries().size(), 2u);
    EXPECT_EQ(bag.Entries()[0].first, u"BackColor");
    EXPECT_EQ(bag.Entries()[0].second, Variant(0x654321));
    EXPECT_EQ(bag.Entries()[1].first, u"Caption");
}

TEST(MemoryPropertyBag, LeavesOutValuesEqualToTheirDefault)
{
    MemoryPropertyBag bag;
    bag.WriteProperty(u"Enabled", Variant(true), Variant(true));
    EXPECT_EQ(bag.Find(u"Enabled"), nullptr);
    bag.WriteProperty(u"Style", Variant(int32_t(1)), Variant(int32_t(0)));
    ASSERT_NE(bag.Find(u"Style"), nullptr);
    // Writing the default later removes what an earlier save stored.
    bag.WriteProperty(u"Style", Variant(int32_t(0)), Variant(int32_t(0)));
    EXPECT_EQ(bag.Find(u"Style"), nullptr);
    EXPECT_TRUE(bag.Entries().empty());
}

TEST(MemoryPropertyBag, ReadsTheStoredValueOrTheDefault)
{
    MemoryPropertyBag bag;
    bag.Set(u"Caption", Variant(u"Saved"));
    EXPECT_EQ(bag.ReadProperty(u"Caption", Variant(u"Command")), Variant(u"Saved"));
    EXPECT_EQ(bag.ReadProperty(u"Style", Variant(int32_t(0))), Variant(int32_t(0)));
    EXPECT_EQ(bag.ReadProperty(u"caption", Variant(u"x")), Variant(u"x")); // keys are exact
}

TEST(MemoryPropertyBag, RecordsEveryOperationWithItsDefault)
{
    MemoryPropertyBag bag;
    bag.Set(u"A", Variant(int32_t(1))); // not an operation
    bag.ReadProperty(u"A", Variant(int32_t(0)));
    bag.WriteProperty(u"B", Variant(int32_t(2)), Variant(int32_t(2)));
    bag.ReadProperty(u"C", Variant(u"c"));
    const std::vector<MemoryPropertyBag::Operation> expected {
        { Kind::Read, u"A", Variant(int32_t(0)) },
        { Kind::Write, u"B", Variant(int32_t(2)) },
        { Kind::Read, u"C", Variant(u"c") },
    };
    EXPECT_EQ(bag.Operations(), expected);
    EXPECT_EQ(bag.KeysOf(Kind::Read), (std::vector<String> { u"A", u"C" }));
    EXPECT_EQ(bag.KeysOf(Kind::Write), (std::vector<String> { u"B" }));
    bag.ClearOperations();
    EXPECT_TRUE(bag.Operations().empty());
}

} // namespace
} // namespace tolva
