#include "core/text_box_model.h"
#include "tests/unit/core/run_time_error_of.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

constexpr int16_t Shift = 1;
constexpr int16_t Ctrl = 2;

// Input steps: a character, or a key with its shift state.
struct Step {
    char16_t character = 0;
    int16_t key = 0;
    int16_t shift = 0;
};

Step Char(char16_t c)
{
    return { c, 0, 0 };
}
Step Key(int16_t key, int16_t shift = 0)
{
    return { 0, key, shift };
}

struct ChangeCounter final : TextBoxListener {
    void OnChange() override { ++changes; }
    int changes = 0;
};

TEST(TextBoxModel, EditsAsTheUserTypes)
{
    const struct {
        const char16_t* start;
        int32_t maxLength;
        bool locked;
        std::vector<Step> steps;
        const char16_t* text;
        const char16_t* clipboard;
    } cases[] = {
        { u"", 0, false, { Char('a'), Char('b'), Char(8), Char('c') }, u"ac", u"" },
        { u"abc", 0, false, { Key(36), Key(46), Key(35), Char('d') }, u"bcd", u"" },
        { u"abcd", 3, false, { Key(35), Char('e') }, u"abcd", u"" }, // over the limit already
        { u"ab", 3, false, { Key(35), Char('c'), Char('d') }, u"abc", u"" },
        { u"abc", 0, true, { Key(35), Char('d'), Char(8), Key(36), Key(46) }, u"abc", u"" },
        { u"hello", 0, false, { Key(36), Key(39, Shift), Key(39, Shift), Char(24), Key(35), Char(22) }, u"llohe",
            u"he" },
        { u"hello", 0, false, { Key(35), Key(37, Shift), Key(45, Ctrl), Key(36), Key(45, Shift) }, u"ohello", u"o" },
        { u"ab", 3, false, { Key(36), Key(39, Shift), Char(3), Key(35), Char(22), Char(22) }, u"aba", u"a" },
        { u"ab", 0, false, { Key(35), Char('c'), Char('d'), Char(26) }, u"ab", u"" }, // typing undoes as one
        { u"ab", 0, false, { Key(35), Char('c'), Char(26), Char(26) }, u"abc", u"" }, // undo again redoes
        { u"ab", 0, false, { Key(37), Key(37), Key(37), Char(8), Key(39), Key(39), Key(39), Key(46) }, u"ab", u"" },
    };
    for (const auto& c : cases) {
        TextBoxModel box;
        box.SetText(c.start);
        box.SetMaxLength(c.maxLength);
        box.SetLocked(c.locked);
        String clipboard;
        for (const Step& step : c.steps) {
            if (step.character)
                box.ApplyChar(step.character, clipboard);
            else
                box.ApplyKeyDown(step.key, step.shift, clipboard);
        }
        EXPECT_EQ(box.Text(), c.text) << ToUtf8(c.text);
        EXPECT_EQ(clipboard, c.clipboard) << ToUtf8(c.text);
    }
}

TEST(TextBoxModel, CodeIsNotLimitedButTheSelectionIsClamped)
{
    TextBoxModel box;
    ChangeCounter counter;
    box.SetListener(&counter);
    box.SetMaxLength(3);
    box.SetLocked(true);
    box.SetText(u"longer than three");
    box.SetText(u"longer than three");
    EXPECT_EQ(counter.changes, 1);
    box.SetSelStart(1000);
    EXPECT_EQ(box.SelStart(), 17);
    box.SetSelStart(5);
    box.SetSelLength(1 << 30);
    EXPECT_EQ(box.SelText(), u"r than three");
    box.SetSelText(u"XYZW"); // the room the limit leaves: none
    EXPECT_EQ(box.Text(), u"longe");
    EXPECT_EQ(RunTimeErrorOf([&] { box.SetSelStart(-1); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { box.SetSelLength(-1); }), 380);
    box.SetText(u"new");
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
}

} // namespace
} // namespace tolva
