#include "pages/ppg_command.h"
#include "pages/ppg_input.h"
#include "pages/ppg_label.h"
#include "pages/ppg_list_general.h"
#include "pages/ppg_scroll.h"
#include "tests/unit/pages/page_test_fixture.h"

namespace tolva {

using CommandPageTest = PageTest<ppgCommand>;

// Several buttons selected: the page shows the first, typing marks it changed once, and Apply
// writes the first alone. MenuName, written through its own setter, still does not mark the
// form dirty.
TEST_F(CommandPageTest, ReadsAndWritesTheFirstSelectedControlOnly)
{
    DesignedControl<TolvaCommand> placed(tree);
    TolvaCommand& first = placed.control;
    TolvaCommand& second = NewControl<TolvaCommand>();
    first.SetCaption(u"One");
    first.SetMenuName(u"mnuOne");
    second.SetCaption(u"Two");
    second.SetEnabled(false);
    placed.site.propertyChanges.clear();
    Select(first, second);
    EXPECT_EQ(page.txtCaption().Text(), u"One");
    EXPECT_EQ(page.txtMenuName().Text(), u"mnuOne");
    EXPECT_EQ(page.chkEnabled().Value(), 1);
    EXPECT_FALSE(page.Changed());
    EXPECT_EQ(statusChanges, 0);

    page.txtCaption().SetText(u"New");
    page.txtMenuName().SetText(u"mnuNew");
    EXPECT_TRUE(page.Changed());
    EXPECT_EQ(statusChanges, 1);
    page.Apply();

    EXPECT_FALSE(page.Changed());
    EXPECT_EQ(first.Caption(), u"New");
    EXPECT_EQ(first.MenuName(), u"mnuNew");
    EXPECT_EQ(placed.site.propertyChanges, (std::vector<String> { u"Caption", u"Enabled" }));
    EXPECT_EQ(second.Caption(), u"Two");
    EXPECT_FALSE(second.Enabled());
}

// A grey check box applies False on every page that has one; a checked one applies True.
TEST(GreyCheckBox, AppliesFalse)
{
    const auto check = [](auto& test, auto& control, CheckBox& box, auto read) {
        test.Select(control);
        ASSERT_EQ(box.Value(), 1);
        box.SetValue(2);
        test.page.Apply();
        EXPECT_FALSE(read(control)) << ToUtf8(box.Caption());
        box.SetValue(1);
        test.page.Apply();
        EXPECT_TRUE(read(control)) << ToUtf8(box.Caption());
    };
    PageHarness<ppgCommand> command;
    TolvaCommand& button = command.NewControl<TolvaCommand>();
    check(command, button, command.page.chkEnabled(), [](auto& c) { return c.Enabled(); });

    PageHarness<ppgLabel> label;
    TolvaLabel& caption = label.NewControl<TolvaLabel>();
    caption.SetKerning(true);
    check(label, caption, label.page.chkKerning(), [](auto& c) { return c.Kerning(); });

    PageHarness<ppgInput> input;
    TolvaInput& entry = input.NewControl<TolvaInput>();
    entry.SetLocked(true);
    check(input, entry, input.page.chkLocked(), [](auto& c) { return c.Locked(); });

    PageHarness<ppgListGeneral> general;
    TolvaList& list = general.NewControl<TolvaList>();
    list.SetShowColumnHeaders(true);
    check(general, list, general.page.chkShowColumnHeaders(), [](auto& c) { return c.ShowColumnHeaders(); });
}

using LabelPageTest = PageTest<ppgLabel>;

// Each enumeration sets the button of its index; a value outside the group sets none, and a group
// with none set leaves its property alone on Apply while the others are written.
TEST_F(LabelPageTest, OptionGroupsFollowTheEnumerations)
{
    TolvaLabel& label = NewControl<TolvaLabel>();
    label.SetAlignment(tkLabelAlignment::tkAlignCenter);
    label.SetArrowIcon(tkArrowIcon::tkPointerRight);
    label.SetArrowPosition(7);
    Select(label);
    EXPECT_EQ(page.optAlign().Selected(), 1);
    EXPECT_EQ(page.optArrowIcon().Selected(), 5);
    EXPECT_EQ(page.optArrowPosition().Selected(), -1);

    page.optArrowIcon().Click(2);
    EXPECT_TRUE(page.Changed());
    page.Apply();
    EXPECT_EQ(label.ArrowIcon(), tkArrowIcon::tkArrowUp);
    EXPECT_EQ(label.ArrowPosition(), 7);
    EXPECT_EQ(label.Alignment(), tkLabelAlignment::tkAlignCenter);
}

using InputPageTest = PageTest<ppgInput>;

// MaxLength travels as text and is converted by the property; Apply without an edit rewrites the
// same values, every one reported to the designer.
TEST_F(InputPageTest, AppliesInOrderAndConvertsMaxLength)
{
    TolvaInput& first = NewControl<TolvaInput>();
    TolvaInput& second = NewControl<TolvaInput>();
    first.SetText(u"abc");
    first.SetMaxLength(12);
    second.SetMaxLength(3);
    Select(first, second);
    EXPECT_EQ(page.txtMaxLength().Text(), u"12");

    page.txtMaxLength().SetText(u"40");
    page.Apply();
    EXPECT_EQ(first.MaxLength(), 40);
    EXPECT_EQ(second.MaxLength(), 3);
    EXPECT_EQ(first.Text(), u"abc");

    page.txtMaxLength().SetText(u"forty");
    EXPECT_THROW(page.Apply(), AutomationError);
}

// The text fields of the input and scroll pages select all of their text when they gain the
// focus, ready to be typed over.
TEST(PageTextFields, SelectTheirWholeTextOnTheFocus)
{
    const auto check = [](PageTextBox& field) {
        field.SetText(u"120");
        field->SetSelStart(1);
        field->SetFocus();
        EXPECT_EQ(field->SelStart(), 0);
        EXPECT_EQ(field->SelLength(), 3);
    };
    PageHarness<ppgInput> input;
    check(input.page.txtText());
    check(input.page.txtMaxLength());
    PageHarness<ppgScroll> scroll;
    for (size_t i = 0; i < ppgScroll::Properties.size(); ++i)
        check(scroll.page.Box(i));
}

using ListGeneralPageTest = PageTest<ppgListGeneral>;

// Only a check box changed, yet all three properties are written; RowHeight is raised to its
// floor by the property itself.
TEST_F(ListGeneralPageTest, WritesAllThreeProperties)
{
    DesignedControl<TolvaList> placed(tree);
    Select(placed.control);
    EXPECT_EQ(page.txtRowHeight().Text(), u"240");
    page.chkSelectionTracking().Click();
    page.Apply();
    EXPECT_TRUE(placed.control.SelectionTracking());
    EXPECT_EQ(placed.site.propertyChanges,
              (std::vector<String> { u"ShowColumnHeaders", u"SelectionTracking", u"RowHeight" }));

    page.txtRowHeight().SetText(u"30");
    page.Apply();
    EXPECT_EQ(placed.control.RowHeight(), 90);
}

} // namespace tolva
