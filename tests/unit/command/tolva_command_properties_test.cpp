#include "command_test_fixture.h"
#include "core/memory_property_bag.h"
#include "tests/unit/core/run_time_error_of.h"
#include "tests/unit/support/round_trip.h"

namespace tolva::testing {
namespace {

using Operation = MemoryPropertyBag::Operation;
using OperationKind = MemoryPropertyBag::OperationKind;

class CommandPropertiesTest : public CommandTest {
protected:
    static Font Tahoma()
    {
        Font font;
        font.name = u"Tahoma";
        font.size = 10;
        font.SetBold(true);
        return font;
    }

    // Sets every property to something other than its default.
    static void Customise(TolvaCommand& command)
    {
        command.SetBackColor(0x112233);
        command.SetBackColorActive(0x445566);
        command.SetBackColorPushed(0x778899);
        command.SetForeColorDisabled(0xAABBCC);
        command.SetMenuName(u"mnuFile");
        command.SetForeColor(0x0000FF);
        command.SetEnabled(false);
        command.SetFont(Tahoma());
        command.SetCaption(u"&Print");
        command.SetStyle(tkStyle::tkMenu);
        command.SetAlignment(tkCommandAlignment::tkCenter);
    }

    static std::vector<Operation> ExpectedOperations(OperationKind kind, const Font& ambient)
    {
        return {
            { kind, u"BackColor", OleColor(0xCEDBDE) },
            { kind, u"BackColorActive", OleColor(0xDEE7EF) },
            { kind, u"BackColorPushed", OleColor(0xBDCBCE) },
            { kind, u"ForeColorDisabled", OleColor(0x8C969C) },
            { kind, u"MenuName", u"" },
            { kind, u"ForeColor", OleColor(0x80000012) },
            { kind, u"Enabled", true },
            { kind, u"Font", ambient },
            { kind, u"Caption", u"Command" },
            { kind, u"Style", int32_t(0) },
            { kind, u"Alignment", int32_t(0) },
        };
    }
};

// Setters.

TEST_F(CommandPropertiesTest, EverySetterStoresReportsItsKeyAndRepaints)
{
    const struct {
        const char16_t* key;
        std::function<void(TolvaCommand&)> set;
        std::function<bool(const TolvaCommand&)> stored;
        bool reportsAndRepaints = true;
    } cases[] = {
        { u"Style", [](auto& c) { c.SetStyle(1); }, [](auto& c) { return c.Style() == 1; } },
        { u"Caption", [](auto& c) { c.SetCaption(u"OK"); }, [](auto& c) { return c.Caption() == u"OK"; } },
        { u"BackColorPushed", [](auto& c) { c.SetBackColorPushed(0x10); },
            [](auto& c) { return c.BackColorPushed() == 0x10u; } },
        { u"Font", [](auto& c) { c.SetFont(Tahoma()); }, [](auto& c) { return c.GetFont() == Tahoma(); } },
        { u"Enabled", [](auto& c) { c.SetEnabled(false); }, [](auto& c) { return !c.Enabled(); } },
        { u"ForeColor", [](auto& c) { c.SetForeColor(0x20); }, [](auto& c) { return c.ForeColor() == 0x20u; } },
        { u"ForeColorDisabled", [](auto& c) { c.SetForeColorDisabled(0x30); },
            [](auto& c) { return c.ForeColorDisabled() == 0x30u; } },
        { u"BackColor", [](auto& c) { c.SetBackColor(0x40); }, [](auto& c) { return c.BackColor() == 0x40u; } },
        { u"BackColorActive", [](auto& c) { c.SetBackColorActive(0x50); },
            [](auto& c) { return c.BackColorActive() == 0x50u; } },
        { u"Alignment", [](auto& c) { c.SetAlignment(1); }, [](auto& c) { return c.Alignment() == 1; } },
        // MenuName neither dirties the form nor repaints.
        { u"MenuName", [](auto& c) { c.SetMenuName(u"mnuEdit"); },
            [](auto& c) { return c.MenuName() == u"mnuEdit"; }, false },
    };
    for (const auto& test : cases) {
        site.propertyChanges.clear();
        const int presents = surface.PresentCount();
        test.set(button);
        EXPECT_TRUE(test.stored(button)) << ToUtf8(test.key);
        EXPECT_EQ(site.propertyChanges,
            test.reportsAndRepaints ? std::vector<String> { test.key } : std::vector<String> {})
            << ToUtf8(test.key);
        EXPECT_EQ(surface.PresentCount(), presents + (test.reportsAndRepaints ? 1 : 0)) << ToUtf8(test.key);
    }
}

TEST_F(CommandPropertiesTest, ForeColourEnabledAndFontLiveOnTheSurface)
{
    button.SetForeColor(0x123456);
    button.SetEnabled(false);
    button.SetFont(Tahoma());
    EXPECT_EQ(surface.ForeColor(), 0x123456u);
    EXPECT_FALSE(surface.Enabled());
    EXPECT_EQ(surface.GetFont(), Tahoma());

    surface.SetForeColor(0x654321);
    surface.SetEnabled(true);
    EXPECT_EQ(button.ForeColor(), 0x654321u);
    EXPECT_TRUE(button.Enabled());
}

// Refresh asks the surface, which paints again; any ambient change repaints; the about box goes
// through the site.
TEST_F(CommandPropertiesTest, HostRequestsRepaintOrGoThroughTheSite)
{
    const int presents = surface.PresentCount();
    button.Refresh();
    EXPECT_EQ(surface.RefreshCount(), 1);
    surface.AmbientChanged(u"BackColor");
    surface.AmbientChanged(u"UserMode");
    EXPECT_EQ(surface.PresentCount(), presents + 3);
    button.AboutBox();
    EXPECT_EQ(site.aboutBoxes, 1);
}

// New instances: every property goes back to its default, so only the caption (the instance's
// name) is saved, besides the fore colour and Enabled, which live on the surface and stay.
TEST_F(CommandPropertiesTest, ANewButtonShowsItsInstanceNameAndTheAmbientFont)
{
    headless::HeadlessSurface other { tree };
    site.extenderName = u"TolvaCommand12";
    site.ambientFont = Font { u"Arial", 12 };
    TolvaCommand command { other, site };
    Customise(command);
    other.SetForeColor(0x00FF00);
    site.propertyChanges.clear();

    command.InitProperties();
    EXPECT_EQ(command.GetFont(), site.ambientFont);
    EXPECT_TRUE(site.propertyChanges.empty());
    MemoryPropertyBag bag;
    command.WriteProperties(bag);
    EXPECT_EQ(bag.Entries(),
        (std::vector<std::pair<String, Variant>> {
            { u"ForeColor", int32_t(0x00FF00) }, { u"Enabled", false }, { u"Caption", u"TolvaCommand12" } }));
}

// Persistence: reading and writing use the same keys, order and defaults; an empty bag gives
// the default button, which saves nothing.
TEST_F(CommandPropertiesTest, ReadsAndWritesItsKeysInOrderWithTheirDefaults)
{
    site.ambientFont = Tahoma();
    MemoryPropertyBag read;
    button.ReadProperties(read);
    EXPECT_EQ(read.Operations(), ExpectedOperations(OperationKind::Read, Tahoma()));
    EXPECT_EQ(button.Caption(), u"Command");
    MemoryPropertyBag written;
    button.WriteProperties(written);
    EXPECT_EQ(written.Operations(), ExpectedOperations(OperationKind::Write, Tahoma()));
    EXPECT_TRUE(written.Entries().empty());
}

// Colours are saved as numbers, system colours with their high bit; a copy read from the bag
// saves the same entries.
TEST_F(CommandPropertiesTest, ValuesAreWrittenWithTheirAutomationTypesAndReadBack)
{
    Customise(button);
    button.SetForeColor(0x80000008);
    headless::HeadlessSurface other { tree };
    TolvaCommand copy { other, site };
    const MemoryPropertyBag bag = ExpectRoundTrip(button, copy);
    EXPECT_EQ(bag.Entries(),
        (std::vector<std::pair<String, Variant>> { { u"BackColor", int32_t(0x112233) },
            { u"BackColorActive", int32_t(0x445566) }, { u"BackColorPushed", int32_t(0x778899) },
            { u"ForeColorDisabled", int32_t(0xAABBCC) }, { u"MenuName", u"mnuFile" },
            { u"ForeColor", int32_t(0x80000008) }, { u"Enabled", false }, { u"Font", Tahoma() },
            { u"Caption", u"&Print" }, { u"Style", int32_t(1) }, { u"Alignment", int32_t(1) } }));
}

TEST_F(CommandPropertiesTest, ReadingPassesTheFontThroughItsSetter)
{
    MemoryPropertyBag bag;
    bag.Set(u"Font", Tahoma());
    site.propertyChanges.clear();
    button.ReadProperties(bag);
    EXPECT_EQ(surface.GetFont(), Tahoma());
    EXPECT_EQ(site.propertyChanges, std::vector<String> { u"Font" });
}

TEST_F(CommandPropertiesTest, AValueOfTheWrongKindIsATypeMismatch)
{
    for (const char16_t* key : { u"BackColor", u"Enabled", u"Font", u"Style" }) {
        MemoryPropertyBag bag;
        bag.Set(key, u"not a value");
        EXPECT_EQ(RunTimeErrorOf([&] { button.ReadProperties(bag); }), RunTimeError::TypeMismatch) << ToUtf8(key);
    }
}

} // namespace
} // namespace tolva::testing
