#include "tests/unit/scroll/scroll_test_fixture.h"
#include "tests/unit/support/accessible_printing.h"

namespace tolva::testing {
namespace {

using enum AccessibleEvent;

// The value is Value; every change that raises Change or Scroll is a change of the value for
// screen readers, and a refused one is none.
TEST_F(ScrollTest, ReadsAsAScrollBarWhoseValueIsValue)
{
    site.extenderName = u"vsbPage";
    scroll.SetValue(40);
    EXPECT_EQ(scroll.Describe(),
        (AccessibleDescription { u"vsbPage", AccessibleRole::ScrollBar, 0, u"40", u"", u"", {} }));
    EXPECT_FALSE(scroll.DoDefaultAction());
    surface.TakeAnnouncements();
    scroll.SetValue(41);
    scroll.SetValue(500);
    EXPECT_EQ(surface.TakeAnnouncements(), (Heard { { ValueChange, AccessibleElement::None } }));
    scroll.SetEnabled(false);
    EXPECT_EQ(scroll.Describe().state, AccessibleState::Unavailable);
}

} // namespace
} // namespace tolva::testing
