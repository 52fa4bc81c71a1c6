#include "tests/unit/input/input_test_fixture.h"
#include "tests/unit/support/accessible_printing.h"

namespace tolva::testing {
namespace {

using namespace AccessibleState;
using enum AccessibleEvent;
constexpr int32_t Self = AccessibleElement::None;

TEST_F(InputTest, ReadsAsEditableTextWhoseValueIsTheText)
{
    struct Case {
        const char* what;
        int32_t style;
        bool locked;
        AccessibleDescription expected;
    };
    const Case cases[] = {
        { "text box", tkInputStyles::tkTextBox, false,
            { u"txtAmount", AccessibleRole::EditableText, Focusable, u"12.50", u"", u"", {} } },
        { "locked", tkInputStyles::tkTextBox, true,
            { u"txtAmount", AccessibleRole::EditableText, Focusable | ReadOnly, u"12.50", u"", u"", {} } },
        { "calendar", tkInputStyles::tkCalendar, false,
            { u"txtAmount", AccessibleRole::EditableText, Focusable | Collapsed, u"12.50", u"", u"Open", {} } },
        { "list", tkInputStyles::tkCombo, false,
            { u"txtAmount", AccessibleRole::EditableText, Focusable | Collapsed, u"12.50", u"", u"Open", {} } },
    };
    site.extenderName = u"txtAmount";
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        input.SetStyle(c.style);
        input.SetLocked(c.locked);
        input.SetText(u"12.50");
        EXPECT_EQ(input.Describe(), c.expected);
    }
}

// The default action clicks the drop-down button: the pop-up opens, and the control reads as
// expanded until the pop-up closes. Screen readers hear the button pressed, the pop-up open, the
// button released, the text as the calendar's callback writes it and as "CANCEL" restores it, the
// pop-up closed, and then the text typed.
TEST_F(InputTest, OpenDropsDownThePopupAndTheStateFollowsIt)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    surface.TakeAnnouncements();
    ASSERT_TRUE(input.DoDefaultAction());
    EXPECT_EQ(input.Describe().state & (Expanded | Collapsed), Expanded);
    EXPECT_EQ(input.Describe().defaultAction, u"Close");
    Callback(u"CANCEL");
    EXPECT_EQ(input.Describe().state & (Expanded | Collapsed), Collapsed);
    EXPECT_EQ(surface.TakeAnnouncements(),
        (Heard { { StateChange, Self }, { StateChange, Self }, { StateChange, Self }, { ValueChange, Self },
            { ValueChange, Self }, { StateChange, Self } }));

    Box().Type(u"7");
    EXPECT_EQ(surface.TakeAnnouncements(), (Heard { { ValueChange, Self } }));

    input.SetStyle(tkInputStyles::tkTextBox);
    EXPECT_FALSE(input.DoDefaultAction());
}

} // namespace
} // namespace tolva::testing
