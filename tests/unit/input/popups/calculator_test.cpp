#include "tests/unit/support/accessible_printing.h"
#include "popup_test_fixture.h"

namespace tolva::testing {
namespace {

class CalculatorPopupTest : public PopupTest {
protected:
    frmCalculator& Open()
    {
        frmCalculator& calculator = Load<frmCalculator>();
        calculator.SetParent(&owner);
        calculator.Setup();
        calculator.Show();
        return calculator;
    }
    void Type(frmCalculator& calculator, std::u16string_view keys)
    {
        for (char16_t key : keys)
            WindowOf(calculator).KeyPress(int16_t(key));
    }
    // The keys that show pressed, by their messages.
    static std::string PressedKeys(const frmCalculator& calculator)
    {
        std::string pressed;
        for (int key = 0; key < CalculatorKey::Count; ++key)
            if (calculator.KeyShowsPressed(key))
                pressed += ToUtf8(CalculatorKeys()[size_t(key)].message);
        return pressed;
    }
};

// Each character acts as its key (12 clears and nothing changes the sign); the mouse reaches
// every key image, the sign change too, and a press on the frame between keys sends nothing.
TEST_F(CalculatorPopupTest, KeysAndKeyImagesSendTheirMessages)
{
    const std::vector<std::string> digits { "# 0", "# 1", "# 2", "# 3", "# 4", "# 5", "# 6", "# 7", "# 8", "# 9" };
    frmCalculator& calculator = Open();
    Type(calculator, u"0123456789");
    for (char16_t key : std::u16string_view(u"\x0C\x08./*+-=\x0D" u"cSsn%")) {
        WindowOf(calculator).KeyPress(int16_t(key));
        Advance(10 * frmCalculator::AnimationInterval);
    }
    Advance(100 * frmCalculator::AnimationInterval);
    std::vector<std::string> expected = digits;
    expected.insert(expected.end(), { "C", "B", ".", "/", "*", "+", "-", "=", "=" });
    EXPECT_EQ(owner.log, expected);

    owner.log.clear();
    for (int key = 0; key < CalculatorKey::Count; ++key) {
        const Rect place = CalculatorKeys()[size_t(key)].place;
        WindowOf(calculator).MouseDown(2, 0, float(place.right - 1) * 15, float(place.bottom - 1) * 15);
        Advance(2 * frmCalculator::AnimationInterval);
    }
    WindowOf(calculator).MouseDown(1, 0, 15, 15);
    Advance(2 * frmCalculator::AnimationInterval);
    expected = digits;
    expected.insert(expected.end(), { "+", "-", "*", "/", "=", ".", "S", "B", "C" });
    EXPECT_EQ(owner.log, expected);
}

// Typed faster than the animation plays: each key shows pressed for one tick and is sent as it
// does; the control computes 15 and closes the calculator on "=".
TEST_F(CalculatorPopupTest, KeysTypedQuicklyPlayBackInOrder)
{
    input.SetStyle(tkInputStyles::tkCalculator);
    input.SetText(u"0");
    PressDropDown();
    frmCalculator& calculator = *popups.Loaded<frmCalculator>();
    Type(calculator, u"12+3=");
    const std::vector<std::pair<std::string, std::string>> expected = {
        { "1", "1" }, { "", "1" }, { "2", "12" }, { "", "12" }, { "+", "12" }, { "", "12" }, { "3", "3" }, { "", "3" },
    };
    for (const auto& [pressed, text] : expected) {
        EXPECT_EQ(PressedKeys(calculator), pressed);
        EXPECT_EQ(ToUtf8(input.Text()), text);
        Advance(frmCalculator::AnimationInterval);
    }
    EXPECT_EQ(ToUtf8(input.Text()), "15");
    EXPECT_EQ(popups.Loaded<frmCalculator>(), nullptr);
    EXPECT_FALSE(calculator.Animating());
}

// A second "." is refused with a beep, but its key still goes down and up.
TEST_F(CalculatorPopupTest, ARefusedKeyStillAnimates)
{
    input.SetStyle(tkInputStyles::tkCalculator);
    input.SetText(u"0");
    PressDropDown();
    frmCalculator& calculator = *popups.Loaded<frmCalculator>();
    Type(calculator, u"..");
    std::string looks;
    for (int tick = 0; tick < 4; ++tick) {
        looks += PressedKeys(calculator) == "." ? "down " : "up ";
        looks += std::to_string(site.beeps) + ", ";
        Advance(frmCalculator::AnimationInterval);
    }
    EXPECT_EQ(looks, "down 0, up 0, down 1, up 1, ");
    EXPECT_EQ(ToUtf8(input.Text()), "0.");
    EXPECT_FALSE(calculator.Animating());
}

// Esc brings the text of before the calculator back; a click elsewhere accepts and formats it.
TEST_F(CalculatorPopupTest, EscRestoresAndAClickElsewhereAccepts)
{
    input.SetStyle(tkInputStyles::tkCalculator);
    input.SetText(u"42");
    PressDropDown();
    frmCalculator& calculator = *popups.Loaded<frmCalculator>();
    Type(calculator, u"7");
    EXPECT_EQ(ToUtf8(input.Text()), "7");
    Type(calculator, u"\x1B");
    EXPECT_EQ(ToUtf8(input.Text()), "42");
    EXPECT_EQ(popups.Loaded<frmCalculator>(), nullptr);

    PressDropDown();
    Type(calculator, u"5");
    tree.Activate(nullptr);
    EXPECT_FALSE(calculator.Visible());
    EXPECT_EQ(ToUtf8(input.Text()), "$5.00");
}

// To screen readers the keypad is a group of push buttons named by their captions; pressing one
// plays it as a click does, and each change of its look is a change of its state.
TEST_F(CalculatorPopupTest, ReadsAsAGroupOfKeysThatPress)
{
    frmCalculator& calculator = Open();
    EXPECT_EQ(calculator.Describe().role, AccessibleRole::Grouping);
    ASSERT_EQ(calculator.ChildCount(), CalculatorKey::Count);
    EXPECT_EQ(calculator.Child(CalculatorKey::Div)->Describe(),
        (AccessibleDescription { u"\u00F7", AccessibleRole::PushButton, 0, u"", u"", u"Press", CalculatorKeys()[CalculatorKey::Div].place }));
    EXPECT_EQ(calculator.Child(CalculatorKey::Bksp)->Describe().name, u"Backspace");

    WindowOf(calculator).TakeAnnouncements();
    EXPECT_TRUE(calculator.Child(7)->DoDefaultAction());
    EXPECT_EQ(calculator.Child(7)->Describe().state, AccessibleState::Pressed);
    Advance(frmCalculator::AnimationInterval);
    EXPECT_EQ(owner.log, (std::vector<std::string> { "# 7" }));
    EXPECT_EQ(WindowOf(calculator).TakeAnnouncements(), Heard(2, { AccessibleEvent::StateChange, 7 }));
}

} // namespace
} // namespace tolva::testing
