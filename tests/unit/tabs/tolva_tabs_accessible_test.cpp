#include "tests/unit/support/accessible_printing.h"
#include "tests/unit/tabs/tabs_test_fixture.h"

namespace tolva::testing {
namespace {

using namespace AccessibleState;
using enum AccessibleEvent;

AccessibleDescription TabOf(TolvaTabs& tabs, int32_t index)
{
    auto tab = tabs.Child(index);
    EXPECT_TRUE(tab);
    return tab ? tab->Describe() : AccessibleDescription {};
}

TEST_F(TabsTest, ReadsAsAPageTabListOfTabsInTheirPlaces)
{
    site.extenderName = u"tabMain";
    AddTabs({ u"&File", u"Save && close" });
    tabs.SetSelectedItem(2);
    surface.SetFocus();
    EXPECT_EQ(tabs.Describe(),
        (AccessibleDescription { u"tabMain", AccessibleRole::PageTabList, Focusable | Focused, u"", u"", u"", {} }));
    EXPECT_EQ(tabs.ChildCount(), 2);
    EXPECT_EQ(TabOf(tabs, 0),
        (AccessibleDescription { u"File", AccessibleRole::PageTab, Selectable, u"", u"Alt+F", u"Switch", { 0, 0, 113, 14 } }));
    EXPECT_EQ(TabOf(tabs, 1),
        (AccessibleDescription { u"Save & close", AccessibleRole::PageTab, Selectable | Selected | Focused, u"", u"", u"Switch",
            { 118, 0, 232, 14 } }));
    EXPECT_EQ(tabs.Child(2), nullptr);

    tabs.SetEnabled(false);
    EXPECT_EQ(TabOf(tabs, 0).state, Selectable | Unavailable);
    EXPECT_FALSE(tabs.Child(0)->DoDefaultAction());
}

// The default action selects as a press does: Change hears it and may refuse it, and only a
// selection that stands is announced.
TEST_F(TabsTest, SwitchSelectsTheTabAndAnnouncesWhatStands)
{
    AddTabs({ u"One", u"Two", u"Three" });
    ClearRecords();
    surface.TakeAnnouncements();
    EXPECT_TRUE(tabs.Child(2)->DoDefaultAction());
    EXPECT_EQ(tabs.SelectedChild(), 2);
    events.cancelChange = true;
    EXPECT_TRUE(tabs.Child(0)->Select());
    EXPECT_EQ(tabs.SelectedItem(), 3);
    EXPECT_EQ(events.log, (std::vector<std::string> { "Change 3", "Change 1" }));
    EXPECT_EQ(surface.TakeAnnouncements(), (Heard { { Selection, 2 } }));

    auto last = tabs.Child(2);
    tabs.RemoveItem(1);
    EXPECT_FALSE(last->Exists());
}

} // namespace
} // namespace tolva::testing
