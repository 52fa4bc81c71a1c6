#include "input_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"

namespace tolva::testing {
namespace {

class CalculatorTest : public InputTest {
protected:
    CalculatorTest() { input.SetStyle(tkInputStyles::tkCalculator); }

    // Keys as the keypad sends them: "#7" is the digit 7, "C12.5" a clear with 12.5; the
    // others are the message itself.
    void Press(const std::vector<std::u16string>& keys)
    {
        for (const std::u16string& key : keys) {
            if (key[0] == u'#' && key.size() > 1)
                Callback(u"#", Currency::FromInt(key[1] - u'0'));
            else if (key[0] == u'C' && key.size() > 1)
                Callback(u"C", Variant(key.substr(1)).ToCurrency());
            else
                Callback(key);
        }
    }

    // The keys that type a number after a clear, minus sign last.
    static std::vector<std::u16string> Typed(std::u16string number)
    {
        std::vector<std::u16string> keys { u"C0" };
        for (char16_t c : number) {
            if (c >= u'0' && c <= u'9')
                keys.push_back(std::u16string(u"#") + c);
            else if (c == u'.')
                keys.push_back(u".");
        }
        if (number[0] == u'-')
            keys.push_back(u"S");
        return keys;
    }
    void Press(std::vector<std::u16string> first, const std::vector<std::u16string>& then)
    {
        first.insert(first.end(), then.begin(), then.end());
        Press(first);
    }
};

TEST_F(CalculatorTest, KeySequencesShowTheirResult)
{
    const struct {
        std::vector<std::u16string> keys;
        std::u16string shown;
        int beeps;
    } cases[] = {
        { { u"C0", u"#1", u"#2", u"+", u"#3", u"=" }, u"15", 0 },
        { { u"C0", u"#7", u"/", u"#2", u"=" }, u"3.5", 0 },
        { { u"C0", u"#5", u"+", u"+" }, u"10", 0 }, // the second operator applies the first
        { { u"C0", u"#2", u"*", u"#3", u"-", u"#1", u"=" }, u"5", 0 },
        { { u"C0", u"#1", u".", u"#5", u"." }, u"1.5", 1 }, // a second point beeps
        { { u"C0", u"#8", u"+", u"B" }, u"8", 1 }, // backspace right after an operator beeps
        { { u"C0", u"#1", u"#2", u"B" }, u"1", 0 },
        { { u"C0", u"#4", u"B" }, u"0", 0 },
        { { u"C0", u"#6", u"S" }, u"-6", 0 },
        { { u"C0" }, u"General Number(0)", 0 },
        { { u"C12.5" }, u"General Number(12.5)", 0 },
        { { u"C0", u"#1", u"#2", u"" }, u"Currency(12)", 0 }, // closed without "="
        { { u"C0", u"#0", u"#0" }, u"0", 0 },
    };
    for (const auto& c : cases) {
        site.beeps = 0;
        Press(c.keys);
        EXPECT_EQ(input.Text(), c.shown) << ToUtf8(c.shown);
        EXPECT_EQ(site.beeps, c.beeps) << ToUtf8(c.shown);
        EXPECT_EQ(input.SelStart(), int32_t(input.Text().size()));
    }
}

TEST_F(CalculatorTest, AFormatStringFormatsTheResultOfEqualsAndOfClosing)
{
    input.SetFormatString(u"#,##0.00");
    Press({ u"C0", u"#1", u"+", u"#2", u"=" });
    EXPECT_EQ(input.Text(), u"#,##0.00(3)");
    Press({ u"C0", u"#4", u"" });
    EXPECT_EQ(input.Text(), u"#,##0.00(4)");
}

// + and - are exact to the last place of the currency range; past it they overflow.
TEST_F(CalculatorTest, AdditionIsExactAtTheCurrencyLimits)
{
    Press(Typed(u"922337203685477.5807"), { u"-", u"#1", u"=" });
    EXPECT_EQ(input.Text(), u"922337203685476.5807");
    Press(Typed(u"-922337203685477.5807"), { u"+", u"#0", u".", u"#0", u"#0", u"#0", u"#1", u"=" });
    EXPECT_EQ(input.Text(), u"-922337203685477.5806");
    Press(Typed(u"922337203685477"), { u"+", u"#1" });
    EXPECT_EQ(RunTimeErrorOf([&] { Press({ u"=" }); }), 6);
}

TEST_F(CalculatorTest, ArithmeticErrorsComeOutOfTheCallback)
{
    Press({ u"C0", u"#5", u"/", u"#0" });
    EXPECT_EQ(RunTimeErrorOf([&] { Press({ u"=" }); }), 11);
    Press({ u"C0", u"#0", u"/", u"#0" });
    EXPECT_EQ(RunTimeErrorOf([&] { Press({ u"=" }); }), 6);
    Press(Typed(u"922337203685477"), { u"*", u"#9", u"#9", u"#9" });
    EXPECT_EQ(RunTimeErrorOf([&] { Press({ u"=" }); }), 6);
}

// Opening primes the calculation with the text's value; text that is no number becomes 0.
TEST_F(CalculatorTest, OpeningSendsItselfAClearWithTheValueShown)
{
    for (auto [text, shown] : { std::pair { u"42", u"General Number(42)" }, { u"forty", u"General Number(0)" } }) {
        input.SetText(text);
        surface.MouseDown(1, 0, 1300, 100);
        EXPECT_EQ(input.Text(), shown);
        EXPECT_EQ(input.TextInput().Tag(), text);
        EXPECT_TRUE(input.Calculator().newEntry);
        Callback(u"CANCEL");
        EXPECT_EQ(input.Text(), text);
        factory.calculator->visible = false;
    }
}

TEST_F(CalculatorTest, EqualsUnloadsTheCalculator)
{
    surface.MouseDown(1, 0, 1300, 100);
    factory.log.clear();
    Press({ u"#3", u"=" });
    EXPECT_EQ(factory.log, std::vector<std::string> { "Calculator Unload" });
}

TEST_F(InputTest, TheCalendarsDateBecomesTheTextAndCancelRestoresIt)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    input.SetText(u"next week");
    surface.MouseDown(1, 0, 1300, 100);
    factory.calendar->date = OleDate::FromYmd(2026, 5, 4);
    Callback(u"");
    EXPECT_EQ(input.Text(), u"mm/dd/yyyy(5/4/2026)");
    EXPECT_EQ(input.SelStart(), 20);
    EXPECT_EQ(popups.Loaded(PopupKind::Calendar), nullptr);

    input.SetFormatString(u"d mmm yyyy");
    surface.MouseDown(1, 0, 1300, 100);
    Callback(u"CANCEL");
    EXPECT_EQ(input.Text(), u"mm/dd/yyyy(5/4/2026)");
    surface.MouseDown(1, 0, 1300, 100);
    factory.calendar->date = OleDate::FromYmd(2026, 5, 6);
    Callback(u"");
    EXPECT_EQ(input.Text(), u"d mmm yyyy(5/6/2026)");
}

TEST_F(InputTest, ListSelectionsShowTheItemAfterTheIndexAndCancelRestores)
{
    input.SetStyle(tkInputStyles::tkCombo);
    AddItems({ u"Rent", u"Food", u"Travel" });
    input.SetListIndex(2);
    input.SetText(u"typed");
    surface.MouseDown(1, 0, 1300, 100);
    factory.log.clear();
    Callback(u"SELECT", Currency::FromInt(1));
    EXPECT_EQ(input.ListIndex(), 0);
    EXPECT_EQ(input.Text(), u"Food");
    EXPECT_EQ(input.SelLength(), 4);
    EXPECT_TRUE(factory.log.empty()); // the list stays open

    input.SetListIndex(1);
    EXPECT_EQ(factory.log, std::vector<std::string> { "List SetSelectedItem 2" });
    Callback(u"CANCEL");
    EXPECT_EQ(input.ListIndex(), 2);
    EXPECT_EQ(input.Text(), u"typed");
    EXPECT_EQ(popups.Loaded(PopupKind::List), nullptr);
}

// A callback after the pop-up went (a late message of its activation loop) changes nothing
// it cannot.
TEST_F(InputTest, CallbacksAreToleratedAfterThePopupWent)
{
    input.SetStyle(tkInputStyles::tkCalendar);
    input.SetText(u"kept");
    Callback(u"");
    EXPECT_EQ(input.Text(), u"kept");
    input.SetStyle(tkInputStyles::tkCombo);
    Callback(u"");
    EXPECT_EQ(input.Text(), u"kept");
}

} // namespace
} // namespace tolva::testing
