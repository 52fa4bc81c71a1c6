#include "tests/unit/command/command_test_fixture.h"
#include "tests/unit/label/label_test_fixture.h"
#include "tests/unit/support/accessible_printing.h"
#include <functional>

namespace tolva::testing {
namespace {

using namespace AccessibleState;

struct DescriptionCase {
    const char* what;
    std::function<void(TolvaCommand&, headless::HeadlessSurface&)> arrange;
    AccessibleDescription expected;
};

TEST_F(CommandTest, DescribesItselfAsAPushButton)
{
    const DescriptionCase cases[] = {
        { "access key", [](TolvaCommand& b, auto&) { b.SetCaption(u"Save && &close"); },
            { u"Save & close", AccessibleRole::PushButton, Focusable, u"", u"Alt+C", u"Press", {} } },
        { "empty caption names the extender", [](TolvaCommand& b, auto&) { b.SetCaption(u""); },
            { u"TolvaCommand3", AccessibleRole::PushButton, Focusable, u"", u"", u"Press", {} } },
        { "menu style opens", [](TolvaCommand& b, auto&) { b.SetStyle(tkStyle::tkMenu); },
            { u"TolvaCommand3", AccessibleRole::PushButton, Focusable, u"", u"", u"Open", {} } },
        { "focused and disabled",
            [](TolvaCommand& b, headless::HeadlessSurface& s) {
                s.SetFocus();
                b.SetEnabled(false);
            },
            { u"TolvaCommand3", AccessibleRole::PushButton, Focusable | Focused | Unavailable, u"", u"", u"Press", {} } },
        { "hot and pressed under the mouse",
            [](TolvaCommand&, headless::HeadlessSurface& s) {
                s.MouseMove(0, 0, 150, 150);
                s.MouseDown(1, 0, 150, 150);
            },
            { u"TolvaCommand3", AccessibleRole::PushButton, Focusable | AccessibleState::Hot | Pressed, u"", u"", u"Press", {} } },
    };
    for (const DescriptionCase& c : cases) {
        SCOPED_TRACE(c.what);
        button.InitProperties();
        button.SetEnabled(true);
        tree.SetFocus(nullptr);
        c.arrange(button, surface);
        EXPECT_EQ(button.Describe(), c.expected);
        surface.MouseUp(1, 0, 3000, 3000);
    }
}

TEST_F(CommandTest, DefaultActionClicksAndOpensTheMenuUnlessDisabled)
{
    form.AddMenu(u"mnuFile");
    button.SetStyle(tkStyle::tkMenu);
    button.SetMenuName(u"mnuFile");
    events.log.clear();
    EXPECT_TRUE(button.DoDefaultAction());
    EXPECT_EQ(events.log, (std::vector<std::string> { "Click", "MouseUp 1 0 0 0" }));
    EXPECT_EQ(form.popupMenus.size(), 1u);

    button.SetEnabled(false);
    events.log.clear();
    EXPECT_FALSE(button.DoDefaultAction());
    EXPECT_TRUE(events.log.empty());
}

TEST_F(CommandTest, AnnouncesTheFocusAndEachChangeOfThePressedState)
{
    using enum AccessibleEvent;
    constexpr int32_t Self = AccessibleElement::None;
    surface.TakeAnnouncements();
    surface.SetFocus();
    surface.MouseDown(1, 0, 150, 150);
    surface.MouseMove(1, 0, 300, 150);
    surface.MouseUp(1, 0, 300, 150);
    surface.MouseUp(2, 0, 300, 150);
    EXPECT_EQ(surface.TakeAnnouncements(), (Heard { { Focus, Self }, { StateChange, Self }, { StateChange, Self } }));
}

} // namespace
} // namespace tolva::testing

namespace tolva {
namespace {

TEST_F(LabelTest, IsALinkByItsArrowOrMenuElseStaticText)
{
    struct Case {
        int32_t arrow;
        const char16_t* menu;
        AccessibleRole role;
        const char16_t* action;
        std::vector<std::string> clicks;
    };
    const Case cases[] = {
        { tkArrowPosition::tkNone, u"", AccessibleRole::StaticText, u"", {} },
        { tkArrowPosition::tkRight, u"", AccessibleRole::Link, u"Jump", { "Click", "MouseUp 1 0 0 0" } },
        { tkArrowPosition::tkNone, u"mnuMissing", AccessibleRole::Link, u"Jump", { "Click", "MouseUp 1 0 0 0" } },
    };
    label.InitProperties();
    label.SetCaption(u"&Customers");
    for (const Case& c : cases) {
        label.SetArrowPosition(c.arrow);
        label.SetMenuName(c.menu);
        const AccessibleDescription description = label.Describe();
        EXPECT_EQ(description, (AccessibleDescription { u"Customers", c.role, 0, u"", u"Alt+C", c.action, {} }));
        events.log.clear();
        EXPECT_EQ(label.DoDefaultAction(), !c.clicks.empty());
        EXPECT_EQ(events.log, c.clicks);
    }
}

} // namespace
} // namespace tolva
