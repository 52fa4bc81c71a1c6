#include "controls/scroll/ctl_scroll_box.h"
#include "core/automation_error.h"
#include "core/memory_property_bag.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>
#include <string>

namespace tolva {
namespace {

using OperationKind = MemoryPropertyBag::OperationKind;

class ScrollBoxTest : public ::testing::Test {
protected:
    ScrollBoxTest()
    {
        surface.Resize(255, 255);
        box.SetEventListener(&events);
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    ctlScrollBox box { surface, site };
    MouseEventLog<ctlScrollBoxEvents> events;
};

const std::vector<String> AllKeys { u"BackColor", u"Enabled", u"BorderStyle", u"BackColor", u"Enabled", u"BorderStyle",
    u"CurrentX", u"CurrentY", u"DrawStyle", u"DrawWidth", u"FillColor", u"FillStyle", u"Font", u"ForeColor",
    u"MaskColor", u"MaskPicture", u"Picture", u"FontBold", u"FontItalic", u"FontName", u"FontSize", u"FontStrikethru",
    u"FontTransparent", u"FontUnderline" };

TEST_F(ScrollBoxTest, ReadsAndWritesTheSameKeysWithTheFirstThreeTwice)
{
    MemoryPropertyBag bag;
    box.ReadProperties(bag);
    EXPECT_EQ(bag.KeysOf(OperationKind::Read), AllKeys);
    box.WriteProperties(bag);
    EXPECT_EQ(bag.KeysOf(OperationKind::Write), AllKeys);
}

// An empty bag gives a framed button-face box; its surface is flat, so the border is a frame of
// one pixel.
TEST_F(ScrollBoxTest, AnEmptyBagGivesAFramedButtonFaceBox)
{
    EXPECT_EQ(surface.Appearance(), SurfaceAppearance::Flat);
    MemoryPropertyBag bag;
    box.ReadProperties(bag);
    EXPECT_EQ(box.BackColor(), SystemColor::ButtonFace);
    EXPECT_EQ(box.BorderStyle(), 1);
    EXPECT_TRUE(box.Enabled());
    EXPECT_EQ(surface.GetFont(), site.ambientFont);
    EXPECT_EQ(surface.ScaleWidth(), 255 - 30);
    EXPECT_EQ(surface.ScaleHeight(), 255 - 30);
    box.SetBorderStyle(0);
    EXPECT_EQ(surface.ScaleWidth(), 255);
}

TEST_F(ScrollBoxTest, TheDrawingStateIsKeptAndWrittenBackUnchanged)
{
    MemoryPropertyBag saved;
    saved.Set(u"CurrentX", 12.5f);
    saved.Set(u"DrawStyle", int16_t(2));
    saved.Set(u"FillColor", OleColor(0x123456));
    saved.Set(u"MaskPicture", u"picture data");
    saved.Set(u"FontTransparent", false);
    box.ReadProperties(saved);
    EXPECT_EQ(box.DrawingState().drawStyle, 2);

    MemoryPropertyBag written;
    box.WriteProperties(written);
    for (const char16_t* key : { u"CurrentX", u"DrawStyle", u"FillColor", u"MaskPicture", u"FontTransparent" }) {
        ASSERT_NE(written.Find(key), nullptr) << ToUtf8(key);
        EXPECT_EQ(*written.Find(key), *saved.Find(key)) << ToUtf8(key);
    }
}

TEST_F(ScrollBoxTest, TheSingleFontAttributesOverrideTheFont)
{
    Font saved;
    saved.name = u"Arial";
    saved.size = 12;
    MemoryPropertyBag bag;
    bag.Set(u"Font", saved);
    bag.Set(u"FontBold", true);
    bag.Set(u"FontSize", 9.75f);
    box.ReadProperties(bag);
    const Font font = surface.GetFont();
    EXPECT_EQ(font.name, u"Arial"); // no FontName: the font's own
    EXPECT_TRUE(font.Bold());
    EXPECT_EQ(font.size, 9.75);

    MemoryPropertyBag written;
    box.WriteProperties(written);
    const std::unique_ptr<Surface> other = surface.CreateChild();
    ctlScrollBox copy(*other, site);
    copy.ReadProperties(written);
    EXPECT_EQ(other->GetFont(), font);
}

TEST_F(ScrollBoxTest, PropertiesGoToTheSurfaceAndAreReported)
{
    box.SetBackColor(0x00FF00);
    box.SetEnabled(false);
    box.SetBorderStyle(0);
    EXPECT_EQ(surface.BackColor(), 0x00FF00u);
    EXPECT_EQ(surface.WindowPixel(3, 3), 0x00FF00u);
    EXPECT_FALSE(surface.Enabled());
    EXPECT_EQ(surface.BorderStyle(), 0);
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"BackColor", u"Enabled", u"BorderStyle" }));
    EXPECT_THROW(box.SetBorderStyle(2), AutomationError);
}

TEST_F(ScrollBoxTest, MouseEventsPassOnUnchangedInTheBoxsOwnScale)
{
    surface.MouseDown(1, 0, 30, 45);
    surface.MouseMove(1, 1, 60, 300);
    surface.MouseUp(1, 0, 60, 300);
    surface.Click();
    surface.DblClick();
    EXPECT_EQ(events.log,
        (std::vector<std::string> {
            "MouseDown 1 0 30 45", "MouseMove 1 1 60 300", "MouseUp 1 0 60 300", "Click", "DblClick" }));
}

} // namespace
} // namespace tolva
