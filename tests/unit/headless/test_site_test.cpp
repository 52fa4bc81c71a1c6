#include "core/automation_error.h"
#include "platform/headless/test_site.h"
#include <gtest/gtest.h>

namespace tolva::headless {
namespace {

TEST(TestParentForm, FindsMenusByNameIgnoringCase)
{
    TestParentForm form;
    const auto menu = form.AddMenu(u"mnuFile");
    EXPECT_EQ(form.Control(u"MNUFILE"), menu);
    EXPECT_EQ(form.Control(u"mnuEdit"), nullptr);
    EXPECT_EQ(form.Control(u""), nullptr);
}

TEST(TestParentForm, RecordsPopupMenusAndReportsItsOrigin)
{
    TestParentForm form;
    form.screenOrigin = { 40, 60 };
    const auto menu = form.AddMenu(u"mnuFile");
    form.PopupMenu(*menu, 150, 525);
    EXPECT_EQ(form.ScreenOrigin(), (PixelPoint { 40, 60 }));
    EXPECT_EQ(form.popupMenus, (std::vector<TestParentForm::PopupMenuCall> { { u"mnuFile", 150, 525 } }));
}

TEST(TestParentForm, MissingMembersFailAsOnAFormWithoutThem)
{
    TestParentForm form;
    const auto menu = form.AddMenu(u"mnuFile");
    form.lacksControls = form.lacksHwnd = form.lacksPopupMenu = true;
    const auto errorOf = [](auto&& call) {
        try {
            call();
        } catch (const AutomationError& e) {
            return uint32_t(e.HResult());
        }
        return 0u;
    };
    EXPECT_EQ(errorOf([&] { form.Control(u"mnuFile"); }), 0x800A01B6u);
    EXPECT_EQ(errorOf([&] { form.ScreenOrigin(); }), 0x800A01B6u);
    EXPECT_EQ(errorOf([&] { form.PopupMenu(*menu, 0, 0); }), 0x800A01B6u);
    EXPECT_TRUE(form.popupMenus.empty());
}

} // namespace
} // namespace tolva::headless
