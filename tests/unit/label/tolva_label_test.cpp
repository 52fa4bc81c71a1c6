#include "core/automation_error.h"
#include "core/memory_property_bag.h"
#include "label_test_fixture.h"
#include "tests/unit/support/round_trip.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

using headless::TestParentForm;
using Operation = MemoryPropertyBag::Operation;
using OperationKind = MemoryPropertyBag::OperationKind;

// Persistence: reading and writing differ in order and in two defaults.

TEST_F(LabelTest, ReadsItsKeysInOrderWithTheReadDefaults)
{
    MemoryPropertyBag bag;
    label.ReadProperties(bag);
    const std::vector<Operation> expected {
        { OperationKind::Read, u"BackColor", OleColor(0x000000) },
        { OperationKind::Read, u"ForeColor", OleColor(0xFFFFFF) },
        { OperationKind::Read, u"Enabled", true },
        { OperationKind::Read, u"BorderStyle", int32_t(0) },
        { OperationKind::Read, u"Alignment", int32_t(0) },
        { OperationKind::Read, u"Caption", u"TolvaLabel1" },
        { OperationKind::Read, u"ForeColorActive", OleColor(0x9CDFF7) },
        { OperationKind::Read, u"ForeColorDisabled", OleColor(0x808080) },
        { OperationKind::Read, u"ArrowIcon", int32_t(0) },
        { OperationKind::Read, u"ArrowPosition", int32_t(0) },
        { OperationKind::Read, u"Kerning", false },
        { OperationKind::Read, u"ForeColorPushed", OleColor(0xFFFFFF) },
        { OperationKind::Read, u"BackColorActive", OleColor(0x000000) },
        { OperationKind::Read, u"BackColorPushed", OleColor(0x000000) },
        { OperationKind::Read, u"MenuName", u"" },
        { OperationKind::Read, u"Font", site.ambientFont },
    };
    EXPECT_EQ(bag.Operations(), expected);
    EXPECT_EQ(label.Caption(), u"TolvaLabel1");
    EXPECT_EQ(label.BackColor(), 0x000000u);
    EXPECT_EQ(label.ForeColor(), 0xFFFFFFu);
}

// A new label is named after its instance. Font is written fourth, and the system button colours
// are the colours' defaults, so the black background and white text are always saved.
TEST_F(LabelTest, ANewLabelIsNamedAfterItsInstanceAndWritesFontFourth)
{
    label.InitProperties();
    MemoryPropertyBag bag;
    label.WriteProperties(bag);
    const std::vector<String> expected { u"BackColor", u"ForeColor", u"Enabled", u"Font", u"BorderStyle", u"Alignment",
        u"Caption", u"ForeColorActive", u"ForeColorDisabled", u"ArrowIcon", u"ArrowPosition", u"Kerning",
        u"ForeColorPushed", u"BackColorActive", u"BackColorPushed", u"MenuName" };
    EXPECT_EQ(bag.KeysOf(OperationKind::Write), expected);
    EXPECT_EQ(bag.Operations()[0].defaultValue, Variant(SystemColor::ButtonFace));
    EXPECT_EQ(bag.Operations()[1].defaultValue, Variant(SystemColor::ButtonText));
    EXPECT_EQ(bag.Entries(),
        (std::vector<std::pair<String, Variant>> {
            { u"BackColor", OleColor(0) }, { u"ForeColor", OleColor(0xFFFFFF) }, { u"Caption", u"TolvaLabel7" } }));
}

TEST_F(LabelTest, SystemButtonColoursComeBackWhiteOnBlack)
{
    label.SetBackColor(SystemColor::ButtonFace);
    label.SetForeColor(SystemColor::ButtonText);
    MemoryPropertyBag bag;
    label.WriteProperties(bag);
    EXPECT_EQ(bag.Find(u"BackColor"), nullptr);
    EXPECT_EQ(bag.Find(u"ForeColor"), nullptr);

    label.ReadProperties(bag);
    EXPECT_EQ(label.BackColor(), 0x000000u);
    EXPECT_EQ(label.ForeColor(), 0xFFFFFFu);
}

TEST_F(LabelTest, OtherPropertiesSurviveARoundTrip)
{
    label.InitProperties();
    label.SetCaption(u"&Next");
    label.SetArrowIcon(tkArrowIcon::tkPointerRight);
    label.SetArrowPosition(tkArrowPosition::tkEnd);
    label.SetKerning(true);
    label.SetBorderStyle(tkLabelBorderStyle::Inset);
    label.SetAlignment(tkLabelAlignment::tkAlignCenter);
    label.SetMenuName(u"mnuGo");
    label.SetBackColorActive(0x112233);
    headless::HeadlessSurface other(tree);
    TolvaLabel copy(other, site);
    const MemoryPropertyBag bag = ExpectRoundTrip(label, copy);
    EXPECT_EQ(bag.Entries(),
        (std::vector<std::pair<String, Variant>> { { u"BackColor", OleColor(0) }, { u"ForeColor", OleColor(0xFFFFFF) },
            { u"BorderStyle", int32_t(1) }, { u"Alignment", int32_t(1) }, { u"Caption", u"&Next" },
            { u"ArrowIcon", int32_t(tkArrowIcon::tkPointerRight) }, { u"ArrowPosition", int32_t(tkArrowPosition::tkEnd) },
            { u"Kerning", true }, { u"BackColorActive", OleColor(0x112233) }, { u"MenuName", u"mnuGo" } }));
    EXPECT_EQ(other.BorderStyle(), 1);
}

TEST_F(LabelTest, ABorderStyleTheSurfaceCannotShowIsRefused)
{
    try {
        label.SetBorderStyle(2);
        FAIL() << "no error";
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.HResult(), int32_t(0x800A0000 + RunTimeError::InvalidPropertyValue));
    }
    MemoryPropertyBag bag;
    bag.Set(u"BorderStyle", int32_t(7));
    EXPECT_THROW(label.ReadProperties(bag), AutomationError);
    EXPECT_EQ(surface.BorderStyle(), 0);
}

// Setters report and repaint; MenuName reports without repainting.
TEST_F(LabelTest, SettersReportTheirKeyAndRepaint)
{
    const int presents = surface.PresentCount();
    label.SetCaption(u"x");
    label.SetForeColorPushed(1);
    label.SetEnabled(false);
    label.SetMenuName(u"mnuFile");
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"Caption", u"ForeColorPushed", u"Enabled", u"MenuName" }));
    EXPECT_EQ(surface.PresentCount(), presents + 3);
}

// Mouse events.

// A left release clicks before MouseUp wherever the pointer is; the right button neither pushes
// nor clicks.
TEST_F(LabelTest, ALeftReleaseClicksBeforeMouseUpWhereverThePointerIs)
{
    surface.MouseDown(1, 0, 30, 45);
    EXPECT_TRUE(label.Mouse().pushed);
    surface.MouseMove(1, 0, 3000, 45);
    surface.MouseUp(1, 2, 3000, 45);
    EXPECT_FALSE(label.Mouse().pushed);
    EXPECT_FALSE(label.Mouse().hot);
    surface.MouseDown(2, 0, 30, 45);
    EXPECT_FALSE(label.Mouse().pushed);
    surface.MouseUp(2, 0, 30, 45);
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "MouseDown 1 0 30 45", "MouseMove 1 0 3000 45", "Click", "MouseUp 1 2 3000 45",
            "MouseDown 2 0 30 45", "MouseUp 2 0 30 45" }));
}

TEST_F(LabelTest, DoubleClicksAreForwardedAndTheSurfacesClickIsNot)
{
    surface.Click();
    surface.DblClick();
    EXPECT_EQ(events.log, std::vector<std::string> { "DblClick" });
}

// The menu opens on the side the arrow points to.

class LabelMenuTest : public LabelTest {
protected:
    LabelMenuTest()
    {
        form.AddMenu(u"mnuGo");
        form.screenOrigin = { 100, 50 };
        surface.SetScreenOrigin({ 110, 80 }); // 150 x 450 twips into the form
        site.parent = &form;
        label.SetMenuName(u"mnuGo");
    }

    std::vector<TestParentForm::PopupMenuCall> ClickWith(int32_t icon)
    {
        form.popupMenus.clear();
        label.SetArrowIcon(icon);
        surface.MouseDown(1, 0, 30, 30);
        surface.MouseUp(1, 0, 30, 30);
        return form.popupMenus;
    }

    TestParentForm form;
};

// A down arrow opens the menu under the label; right arrows and pointers to the right of it; the
// other arrows at the label's corner.
TEST_F(LabelMenuTest, TheMenuOpensOnTheSideTheArrowPointsTo)
{
    const struct {
        int32_t icon;
        float x, y;
    } cases[] = {
        { tkArrowIcon::tkArrowDown, 150, 750 },
        { tkArrowIcon::tkArrowRight, 1650, 450 },
        { tkArrowIcon::tkPointerRight, 1650, 450 },
        { tkArrowIcon::tkArrowLeft, 150, 450 },
        { tkArrowIcon::tkArrowUp, 150, 450 },
        { tkArrowIcon::tkPointerLeft, 150, 450 },
    };
    for (const auto& c : cases)
        EXPECT_EQ(ClickWith(c.icon), (std::vector<TestParentForm::PopupMenuCall> { { u"mnuGo", c.x, c.y } })) << c.icon;
}

TEST_F(LabelMenuTest, AMenuThatCannotOpenIsNoErrorAndMouseUpStillFollows)
{
    label.SetMenuName(u"mnuNothing");
    EXPECT_TRUE(ClickWith(tkArrowIcon::tkArrowDown).empty());
    label.SetMenuName(u"mnuGo");
    form.lacksPopupMenu = true;
    EXPECT_TRUE(ClickWith(tkArrowIcon::tkArrowDown).empty());
    EXPECT_EQ(events.log.back(), "MouseUp 1 0 30 30");
    EXPECT_EQ(std::count(events.log.begin(), events.log.end(), "Click"), 2);
}

} // namespace
} // namespace tolva
