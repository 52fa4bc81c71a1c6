#include "controls/list/tk_rows.h"
#include "tests/unit/core/run_time_error_of.h"
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace tolva {
namespace {

struct Item {
    String data;
    int32_t attr = 0;
    bool operator==(const Item&) const = default;
};

std::vector<Item> ItemsOf(const tkRows& rows)
{
    std::vector<Item> items;
    for (int32_t i = 1; i <= rows.Count(); ++i)
        items.push_back({ String(rows.Data(i)), rows.Attr(i) });
    return items;
}

String Text(int n)
{
    return FromUtf8(std::string(size_t(n % 23), char('a' + n % 26)));
}

// Thousands of inserts, removals and rewrites at random places, across many runs of cells and
// through their splits, merges and compactions, against a plain vector doing the same.
TEST(tkRows, KeepsTheOrderOfAPlainSequenceThroughAnyMixOfChanges)
{
    tkRows rows;
    std::vector<Item> expected;
    std::mt19937 random(20240611);
    for (int step = 0; step < 20000; ++step) {
        const int size = int(expected.size());
        const int what = int(random() % 10);
        if (what < 4 || size == 0) {
            // Before outside 1..Count appends.
            const int before = int(random() % (size + 3)) - 1;
            rows.Add(Text(step), before);
            const bool inserts = before > 0 && before <= size;
            expected.insert(inserts ? expected.begin() + (before - 1) : expected.end(), Item { Text(step), 0 });
        } else if (what < 7) {
            const int index = int(random() % size) + 1;
            rows.Remove(index);
            expected.erase(expected.begin() + (index - 1));
        } else if (what < 9) {
            const int index = int(random() % size) + 1;
            rows.SetData(index, Text(step * 7));
            expected[size_t(index - 1)].data = Text(step * 7);
        } else {
            const int index = int(random() % size) + 1;
            rows.SetAttr(index, step);
            expected[size_t(index - 1)].attr = step;
        }
    }
    ASSERT_EQ(rows.Count(), int32_t(expected.size()));
    EXPECT_EQ(ItemsOf(rows), expected);
}

TEST(tkRows, InsertingAtTheTopOfALongColumnShiftsEveryRow)
{
    tkRows rows;
    for (int i = 0; i < 5000; ++i)
        rows.Add(Text(i), -1);
    for (int i = 0; i < 3000; ++i)
        rows.Add(u"top", 1);
    EXPECT_EQ(rows.Count(), 8000);
    EXPECT_EQ(rows.Data(3000), u"top");
    EXPECT_EQ(rows.Data(3001), Text(0));
    EXPECT_EQ(rows.Data(8000), Text(4999));
}

TEST(tkRows, ItemFindsNumbersAndRefusesKeysAndPositionsOutside)
{
    tkRows rows;
    rows.Add(u"a", -1);
    rows.Add(u"b", -1);
    EXPECT_EQ(rows.Item(int32_t(2)), 2);
    EXPECT_EQ(rows.Item(1.5), 2); // halves to even
    EXPECT_EQ(rows.Item(Variant(int16_t(1))), 1);
    struct Case {
        Variant index;
        int error;
    };
    const Case cases[] = {
        { int32_t(0), RunTimeError::SubscriptOutOfRange },
        { int32_t(3), RunTimeError::SubscriptOutOfRange },
        { Variant(), RunTimeError::SubscriptOutOfRange },
        { 1e12, RunTimeError::Overflow },
        { u"1", RunTimeError::InvalidProcedureCall }, // a text is a key
        { Variant(Font {}), RunTimeError::TypeMismatch },
    };
    for (const Case& c : cases)
        EXPECT_EQ(RunTimeErrorOf([&] { rows.Item(c.index); }), c.error);
    EXPECT_EQ(RunTimeErrorOf([&] { rows.Remove(3); }), RunTimeError::SubscriptOutOfRange);
    EXPECT_EQ(RunTimeErrorOf([&] { rows.Remove(0); }), RunTimeError::SubscriptOutOfRange);
}

// A cell costs its characters and a few bytes more; a column filled from the top keeps no
// spare room beyond its last run.
TEST(tkRows, AFilledColumnCostsLittleMoreThanItsCharacters)
{
    tkRows rows;
    constexpr int count = 100000;
    for (int i = 0; i < count; ++i)
        rows.Add(u"0123456789", -1);
    const size_t characters = size_t(count) * 10 * sizeof(char16_t);
    EXPECT_LE(rows.MemoryBytes(), characters + size_t(count) * 16);
}

} // namespace
} // namespace tolva
