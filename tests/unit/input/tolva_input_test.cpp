#include "core/memory_property_bag.h"
#include "input_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"

namespace tolva::testing {
namespace {

using Kind = MemoryPropertyBag::OperationKind;

TEST_F(InputTest, LayoutKeepsTheMinimumHeightAndLeavesTheStripToTheButton)
{
    surface.Resize(1500, 200);
    EXPECT_EQ(surface.Height(), 285);
    EXPECT_EQ(input.TextInput().Width(), surface.ScaleWidth());
    EXPECT_EQ(input.TextInput().Height(), surface.ScaleHeight());
    input.SetStyle(tkInputStyles::tkCalendar);
    EXPECT_EQ(input.TextInput().Width(), surface.ScaleWidth() - 180);
    EXPECT_EQ(site.propertyChanges, std::vector<String> { u"Style" });
}

TEST_F(InputTest, NothingIsLaidOutBeforeTheControlIsInitialised)
{
    headless::HeadlessSurface other { tree };
    TolvaInput fresh { other, site };
    other.Resize(1500, 600);
    EXPECT_EQ(fresh.TextInput().Width(), 0);
    fresh.InitProperties();
    EXPECT_EQ(fresh.TextInput().Width(), other.ScaleWidth());
}

TEST_F(InputTest, WritesEveryKeyInOrderWithItsDefault)
{
    MemoryPropertyBag bag;
    input.WriteProperties(bag);
    const std::vector<MemoryPropertyBag::Operation> expected = {
        { Kind::Write, u"BackColor", Variant(SystemColor::Window) },
        { Kind::Write, u"ForeColor", Variant(SystemColor::WindowText) },
        { Kind::Write, u"Enabled", Variant(true) },
        { Kind::Write, u"Font", Variant(site.AmbientFont()) },
        { Kind::Write, u"List0", Variant(u"") },
        { Kind::Write, u"ListIndex", Variant(int16_t(0)) },
        { Kind::Write, u"Locked", Variant(false) },
        { Kind::Write, u"MaxLength", Variant(int32_t(0)) },
        { Kind::Write, u"SelLength", Variant(int32_t(0)) },
        { Kind::Write, u"SelStart", Variant(int32_t(0)) },
        { Kind::Write, u"SelText", Variant(u"") },
        { Kind::Write, u"Text", Variant(u"TolvaInput1") },
        { Kind::Write, u"Style", Variant(int32_t(0)) },
        { Kind::Write, u"ddBackColor", Variant(uint32_t(0xCEDBDE)) },
        { Kind::Write, u"ddBackColorActive", Variant(uint32_t(0xDEE7EF)) },
        { Kind::Write, u"ddBackColorPushed", Variant(uint32_t(0xBDCBCE)) },
        { Kind::Write, u"SelectionTracking", Variant(false) },
        { Kind::Write, u"FormatString", Variant(u"") },
    };
    EXPECT_EQ(bag.Operations(), expected);
}

TEST_F(InputTest, ReadsTheSelectionBeforeTheTextAndTheFontLate)
{
    MemoryPropertyBag bag;
    bag.Set(u"SelText", u"typed");
    bag.Set(u"Text", u"saved");
    bag.Set(u"FormatString", u"#,##0.00");
    input.ReadProperties(bag);
    EXPECT_EQ(bag.KeysOf(Kind::Read),
        (std::vector<String> { u"BackColor", u"ForeColor", u"Enabled", u"List0", u"ListIndex", u"Locked",
            u"MaxLength", u"SelLength", u"SelStart", u"SelText", u"Text", u"Style", u"ddBackColor",
            u"ddBackColorActive", u"ddBackColorPushed", u"SelectionTracking", u"Font", u"FormatString" }));
    EXPECT_EQ(input.Text(), u"saved");
    EXPECT_EQ(input.FormatString(), u"#,##0.00");
}

TEST_F(InputTest, OnlyTheFirstItemIsSavedAndAnIndexPastItIsLost)
{
    input.SetStyle(tkInputStyles::tkCombo);
    AddItems({ u"Rent", u"Food", u"Travel" });
    for (int16_t saved : { 0, 2 }) {
        input.SetListIndex(saved);
        MemoryPropertyBag bag;
        input.WriteProperties(bag);
        headless::HeadlessSurface other { tree };
        TolvaInput loaded { other, site };
        loaded.ReadProperties(bag);
        EXPECT_EQ(loaded.ListCount(), 1);
        EXPECT_EQ(loaded.List(0), u"Rent");
        EXPECT_EQ(loaded.ListIndex(), saved == 0 ? 0 : -1);
        EXPECT_EQ(loaded.Text(), saved == 0 ? u"Rent" : u"Travel");
    }
}

TEST_F(InputTest, ListIndexReplacesTheTextInEveryStyleAndSelectsIt)
{
    AddItems({ u"Rent", u"Food", u"Travel" });
    events.log.clear();
    input.SetListIndex(2);
    EXPECT_EQ(input.Text(), u"Travel");
    EXPECT_EQ(input.SelStart(), 0);
    EXPECT_EQ(input.SelLength(), 6);
    EXPECT_EQ(events.log, std::vector<std::string> { "Change" });
    EXPECT_EQ(site.propertyChanges, std::vector<String> { u"ListIndex" });
    EXPECT_EQ(RunTimeErrorOf([&] { input.SetListIndex(3); }), 380);
    EXPECT_EQ(RunTimeErrorOf([&] { input.RemoveItem(-1); }), 380);
    EXPECT_EQ(input.Text(), u"Travel");
}

TEST_F(InputTest, SettersForwardToTheTextBoxAndReportTheirKey)
{
    input.SetText(u"hello");
    input.SetSelStart(1);
    input.SetSelLength(3);
    input.SetSelText(u"ipp");
    input.SetMaxLength(8);
    input.SetLocked(true);
    input.SetBackColor(0x00FFFF);
    input.SetEnabled(false);
    EXPECT_EQ(input.Text(), u"hippo");
    EXPECT_EQ(input.TextInput().MaxLength(), 8);
    EXPECT_TRUE(input.TextInput().Locked());
    EXPECT_EQ(input.TextInput().BackColor(), 0x00FFFFu);
    EXPECT_FALSE(input.TextInput().Enabled());
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"Text", u"SelStart", u"SelLength", u"SelText",
                                        u"MaxLength", u"Locked", u"BackColor", u"Enabled" }));
    EXPECT_EQ(RunTimeErrorOf([&] { input.SetMaxLength(-1); }), 380);
}

// A handler that zeroes KeyAscii keeps the character out; one that changes it types the new one.
TEST_F(InputTest, KeyPressHandlersDecideWhatIsTyped)
{
    input.SetText(u"");
    events.keyPress = [](int16_t& key) {
        if (key == 'x')
            key = 0;
        else if (key == 'a')
            key = 'A';
    };
    events.log.clear();
    Box().Type(u"axb");
    EXPECT_EQ(input.Text(), u"Ab");
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "KeyPress 97", "Change", "KeyPress 120", "KeyPress 98", "Change" }));
}

TEST_F(InputTest, TypingIsNeverReformatted)
{
    input.SetStyle(tkInputStyles::tkCalculator);
    input.SetFormatString(u"#,##0.00");
    input.SetText(u"");
    Box().SetFocus();
    Box().Type(u"1234");
    tree.SetFocus(nullptr);
    EXPECT_EQ(input.Text(), u"1234");
}

TEST_F(InputTest, TheTextBoxsMouseEventsAreRaisedAsTheControls)
{
    Box().Window().MouseDown(1, 0, 300, 60);
    Box().Window().MouseUp(1, 0, 300, 60);
    Box().Window().Click();
    Box().Window().DblClick();
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "MouseDown 1 0 300 60", "MouseUp 1 0 300 60", "Click", "DblClick" }));
    EXPECT_TRUE(Box().HasFocus());
}

TEST_F(InputTest, TheFocusGoesOnToTheTextBox)
{
    surface.SetFocus();
    EXPECT_TRUE(Box().HasFocus());
}

} // namespace
} // namespace tolva::testing
