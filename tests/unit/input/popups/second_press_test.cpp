#include "popup_test_fixture.h"
#include "tests/unit/input/input_test_fixture.h"

namespace tolva::testing {
namespace {

// A press on the button while the pop-up shows takes the pop-up's activation before it arrives:
// the pop-up closes as accepted, and the press itself must not open it again. A press that took
// the activation elsewhere leaves the next press on the button free to open it.
class SecondPressTest : public PopupTest {
protected:
    SecondPressTest() { input.SetEventListener(&events); }

    // The strip's point (1400, 100) twips on the screen: the control's client area starts at
    // (150, 300) pixels.
    static constexpr PixelPoint OnButton { 150 + 1400 / 15, 300 + 100 / 15 };

    static PopupKind KindOfStyle(int32_t style)
    {
        return style == tkInputStyles::tkCalendar ? PopupKind::Calendar
            : style == tkInputStyles::tkCalculator ? PopupKind::Calculator
                                                    : PopupKind::List;
    }

    InputEventLog events;
};

TEST_F(SecondPressTest, APressOnTheButtonClosesThePopupItTookTheActivationFrom)
{
    const struct {
        int32_t style;
        const char16_t* text;
        std::string accepted; // the text once the second press closed the pop-up
    } cases[] = {
        { tkInputStyles::tkCalendar, u"02/03/2001", "02/03/2001" },
        { tkInputStyles::tkCalculator, u"42", "$42.00" },
        { tkInputStyles::tkCombo, u"b", "b" },
    };
    input.AddItem(u"a");
    input.AddItem(u"b");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.style);
        input.SetStyle(c.style);
        input.SetText(c.text);
        PressDropDown();
        InputPopup* popup = popups.Loaded(KindOfStyle(c.style));
        ASSERT_TRUE(popup && popup->Visible());
        events.log.clear();

        tree.Activate(nullptr, OnButton);
        PressDropDown();
        EXPECT_FALSE(popup->Visible());
        EXPECT_EQ(ToUtf8(input.Text()), c.accepted);
        EXPECT_EQ(events.log.back(), "MouseDown 1 0 1400 100");

        // Only that press: the next one opens the pop-up again, and so does one after a press
        // elsewhere took the activation.
        PressDropDown();
        EXPECT_TRUE(popup->Visible());
        tree.Activate(nullptr, PixelPoint { OnButton.x - 40, OnButton.y });
        PressDropDown();
        EXPECT_TRUE(popup->Visible());
        tree.Activate(nullptr);
    }
}

} // namespace
} // namespace tolva::testing
