#include "core/automation_error.h"
#include "core/child_site.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/core/run_time_error_of.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(PortableFormatter, ReadsAmountsAndNumbersAndRefusesTheRest)
{
    PortableFormatter formatter;
    EXPECT_EQ(formatter.TextToCurrency(u"($1,234.56785)"), Currency::FromRaw(-12345678)); // half to even
    EXPECT_EQ(formatter.TextToCurrency(u"922,337,203,685,477.5807"), Currency::FromRaw(INT64_MAX));
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.TextToCurrency(u"922337203685477.5808"); }), RunTimeError::Overflow);
    EXPECT_EQ(RunTimeErrorOf([&] { formatter.TextToCurrency(u"12 apples"); }), RunTimeError::TypeMismatch);
    EXPECT_TRUE(formatter.IsNumeric(u" -1,234.5e2 "));
    EXPECT_FALSE(formatter.IsNumeric(u"1e400")); // beyond a double
    EXPECT_FALSE(formatter.IsNumeric(u""));
}

TEST(PortableFormatter, TodayIsTheClocksDateUnlessFixed)
{
    PortableFormatter formatter;
    const OleDate today = formatter.Today();
    EXPECT_EQ(today.Serial(), double(int64_t(today.Serial())));
    EXPECT_GE(today.Year(), 2024);
    formatter.FixToday(OleDate::FromYmd(2001, 2, 3));
    EXPECT_EQ(formatter.Today(), OleDate::FromYmd(2001, 2, 3));
}

TEST(PortableFormatter, AnEmbeddedControlFormatsThroughItsContainer)
{
    headless::WindowTree tree;
    headless::HeadlessSurface container(tree);
    const std::unique_ptr<Surface> child = container.CreateChild();
    headless::TestSite outer;
    ChildSite site(outer, *child, u"txt");
    EXPECT_EQ(&site.Formatting(), &outer.formatter);
    EXPECT_EQ(site.Formatting().Today(), headless::TestSite::Today());
}

} // namespace
} // namespace tolva
