#include "core/automation_error.h"
#include "core/child_site.h"
#include "core/long_arithmetic.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace tolva {
namespace {

TEST(ChildSite, KeepsDesignNotificationsAndAnswersForItsOwnWindow)
{
    headless::WindowTree tree;
    headless::HeadlessSurface container(tree);
    const std::unique_ptr<Surface> child = container.CreateChild();
    child->Move(0, 0, 255, 450);
    headless::TestSite outer;
    headless::TestParentForm form;
    outer.parent = &form;
    outer.userMode = false;
    outer.displayAsDefault = true;
    outer.ambientFont.name = u"Tahoma";

    ChildSite site(outer, *child, u"tlUp");
    site.PropertyChanged(u"BackColor");
    EXPECT_TRUE(outer.propertyChanges.empty());
    EXPECT_EQ(site.ExtenderName(), u"tlUp");
    EXPECT_FLOAT_EQ(site.ExtenderWidth(), 255);
    EXPECT_FLOAT_EQ(site.ExtenderHeight(), 450);
    EXPECT_FALSE(site.DisplayAsDefault());
    EXPECT_FALSE(site.UserMode());
    EXPECT_EQ(site.AmbientFont().name, u"Tahoma");
    EXPECT_EQ(site.Parent(), nullptr); // the form's menus are not the embedded control's
    site.MessageBox(u"Invalid property value", MessageBoxStyle::Critical);
    EXPECT_EQ(outer.messageBoxes.size(), 1u);
}

TEST(LongArithmetic, SumsPast32BitsAreOverflowErrors)
{
    constexpr int32_t max = std::numeric_limits<int32_t>::max();
    constexpr int32_t min = std::numeric_limits<int32_t>::min();
    EXPECT_EQ(CheckedAdd(max - 1, 1), max);
    EXPECT_EQ(CheckedSubtract(min + 1, 1), min);
    EXPECT_THROW(CheckedAdd(max, 1), AutomationError);
    EXPECT_THROW(CheckedSubtract(min, 1), AutomationError);
    EXPECT_THROW(CheckedSubtract(0, min), AutomationError);
}

TEST(LongArithmetic, RoundingTakesHalvesToEvenAndHoldsAtTheEnds)
{
    EXPECT_EQ(RoundToLong(2.5), 2);
    EXPECT_EQ(RoundToLong(3.5), 4);
    EXPECT_EQ(RoundToLong(-2.5), -2);
    EXPECT_EQ(RoundToLong(2.51), 3);
    EXPECT_EQ(RoundToLong(1e12), std::numeric_limits<int32_t>::max());
    EXPECT_EQ(RoundToLong(-1e12), std::numeric_limits<int32_t>::min());
    EXPECT_EQ(RoundToLong(std::nan("")), 0);
}

} // namespace
} // namespace tolva
