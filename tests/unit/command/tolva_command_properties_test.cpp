#include "command_test_fixture.h"
#include "core/automation_error.h"
#include "core/memory_property_bag.h"

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
    };
    for (const auto& test : cases) {
        site.propertyChanges.clear();
        const int presents = surface.PresentCount();
        test.set(button);
        EXPECT_TRUE(test.stored(button)) << ToUtf8(test.key);
        EXPECT_EQ(site.propertyChanges, std::vector<String> { test.key }) << ToUtf8(test.key);
        EXPECT_EQ(surface.PresentCount(), presents + 1) << ToUtf8(test.key);
    }
}

TEST_F(CommandPropertiesTest, MenuNameIsStoredWithoutDirtyingTheFormOrRepainting)
{
    const int presents = surface.PresentCount();
    button.SetMenuName(u"mnuEdit");
    EXPECT_EQ(button.MenuName(), u"mnuEdit");
    EXPECT_TRUE(site.propertyChanges.empty());
    EXPECT_EQ(surface.PresentCount(), presents);
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

// Methods and host requests.

TEST_F(CommandPropertiesTest, RefreshAsksTheSurfaceWhichPaintsAgain)
{
    const int presents = surface.PresentCount();
    button.Refresh();
    EXPECT_EQ(surface.RefreshCount(), 1);
    EXPECT_EQ(surface.PresentCount(), presents + 1);
}

TEST_F(CommandPropertiesTest, AboutBoxGoesThroughTheSite)
{
    button.AboutBox();
    EXPECT_EQ(site.aboutBoxes, 1);
}

TEST_F(CommandPropertiesTest, AnyAmbientChangeRepaints)
{
    const int presents = surface.PresentCount();
    surface.AmbientChanged(u"BackColor");
    surface.AmbientChanged(u"UserMode");
    EXPECT_EQ(surface.PresentCount(), presents + 2);
}

// New instances.

TEST_F(CommandPropertiesTest, NewButtonShowsItsInstanceNameAndTheAmbientFont)
{
    headless::HeadlessSurface other { tree };
    site.extenderName = u"TolvaCommand12";
    site.ambientFont = Tahoma();
    other.SetForeColor(0x00FF00);
    other.SetEnabled(false);
    TolvaCommand command { other, site };
    Customise(command);
    other.SetForeColor(0x00FF00);
    other.SetEnabled(false);
    site.propertyChanges.clear();

    command.InitProperties();
    EXPECT_EQ(command.Caption(), u"TolvaCommand12");
    EXPECT_EQ(command.GetFont(), Tahoma());
    EXPECT_EQ(command.BackColor(), 0xCEDBDEu);
    EXPECT_EQ(command.BackColorActive(), 0xDEE7EFu);
    EXPECT_EQ(command.BackColorPushed(), 0xBDCBCEu);
    EXPECT_EQ(command.ForeColorDisabled(), 0x8C969Cu);
    EXPECT_EQ(command.MenuName(), u"");
    EXPECT_EQ(command.Style(), tkStyle::tkNormal);
    EXPECT_EQ(command.Alignment(), tkCommandAlignment::tkLeft);
    EXPECT_EQ(command.ForeColor(), 0x00FF00u) << "left at the surface's value";
    EXPECT_FALSE(command.Enabled()) << "left at the surface's value";
    EXPECT_TRUE(site.propertyChanges.empty());
}

// Persistence.

TEST_F(CommandPropertiesTest, ReadsItsKeysInOrderWithTheirDefaults)
{
    site.ambientFont = Tahoma();
    MemoryPropertyBag bag;
    button.ReadProperties(bag);
    EXPECT_EQ(bag.Operations(), ExpectedOperations(OperationKind::Read, Tahoma()));
}

TEST_F(CommandPropertiesTest, WritesTheSameKeysInTheSameOrderWithTheSameDefaults)
{
    site.ambientFont = Tahoma();
    MemoryPropertyBag bag;
    button.WriteProperties(bag);
    EXPECT_EQ(bag.Operations(), ExpectedOperations(OperationKind::Write, Tahoma()));
}

TEST_F(CommandPropertiesTest, LoadingAnEmptyBagGivesTheDefaultButton)
{
    MemoryPropertyBag bag;
    button.ReadProperties(bag);
    EXPECT_EQ(button.Caption(), u"Command");
    EXPECT_EQ(button.BackColor(), 0xCEDBDEu);
    EXPECT_EQ(button.ForeColor(), 0x80000012u);
    EXPECT_TRUE(button.Enabled());
    EXPECT_EQ(button.GetFont(), site.ambientFont);
    EXPECT_EQ(button.Style(), 0);
}

TEST_F(CommandPropertiesTest, ANewButtonSavesOnlyItsCaption)
{
    MemoryPropertyBag bag;
    button.WriteProperties(bag);
    ASSERT_EQ(bag.Entries().size(), 1u);
    EXPECT_EQ(bag.Entries()[0].first, u"Caption");
    EXPECT_EQ(bag.Entries()[0].second, Variant(u"TolvaCommand3"));
}

TEST_F(CommandPropertiesTest, ValuesAreWrittenWithTheirAutomationTypes)
{
    Customise(button);
    MemoryPropertyBag bag;
    button.WriteProperties(bag);
    EXPECT_EQ(*bag.Find(u"BackColor"), Variant(int32_t(0x112233)));
    EXPECT_EQ(*bag.Find(u"ForeColor"), Variant(int32_t(0x0000FF)));
    EXPECT_EQ(*bag.Find(u"Enabled"), Variant(false));
    EXPECT_EQ(*bag.Find(u"Font"), Variant(Tahoma()));
    EXPECT_EQ(*bag.Find(u"Caption"), Variant(u"&Print"));
    EXPECT_EQ(*bag.Find(u"MenuName"), Variant(u"mnuFile"));
    EXPECT_EQ(*bag.Find(u"Style"), Variant(int32_t(1)));
    EXPECT_EQ(*bag.Find(u"Alignment"), Variant(int32_t(1)));
    button.SetForeColor(0x80000008);
    button.WriteProperties(bag);
    EXPECT_EQ(*bag.Find(u"ForeColor"), Variant(int32_t(0x80000008))) << "system colours keep their high bit";
}

TEST_F(CommandPropertiesTest, WritingAndReadingBackGivesTheSameButton)
{
    Customise(button);
    MemoryPropertyBag bag;
    button.WriteProperties(bag);

    headless::HeadlessSurface other { tree };
    TolvaCommand copy { other, site };
    copy.ReadProperties(bag);
    EXPECT_EQ(copy.BackColor(), button.BackColor());
    EXPECT_EQ(copy.BackColorActive(), button.BackColorActive());
    EXPECT_EQ(copy.BackColorPushed(), button.BackColorPushed());
    EXPECT_EQ(copy.ForeColorDisabled(), button.ForeColorDisabled());
    EXPECT_EQ(copy.MenuName(), button.MenuName());
    EXPECT_EQ(copy.ForeColor(), button.ForeColor());
    EXPECT_EQ(copy.Enabled(), button.Enabled());
    EXPECT_EQ(copy.GetFont(), button.GetFont());
    EXPECT_EQ(copy.Caption(), button.Caption());
    EXPECT_EQ(copy.Style(), button.Style());
    EXPECT_EQ(copy.Alignment(), button.Alignment());

    MemoryPropertyBag again;
    copy.WriteProperties(again);
    EXPECT_EQ(again.Entries(), bag.Entries());
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
        try {
            button.ReadProperties(bag);
            ADD_FAILURE() << ToUtf8(key) << " was accepted";
        } catch (const AutomationError& error) {
            EXPECT_EQ(error.HResult(), int32_t(0x800A000D)) << ToUtf8(key);
        }
    }
}

} // namespace
} // namespace tolva::testing
