#include "core/memory_property_bag.h"
#include "platform/headless/raster_canvas.h"
#include "tabs_test_fixture.h"
#include "tests/unit/core/run_time_error_of.h"
#include <functional>

namespace tolva::testing {
namespace {

using OperationKind = MemoryPropertyBag::OperationKind;
const ColorRef ButtonFace = headless::RasterCanvas(1, 1).SystemColor(SystemColorIndex(SystemColor::ButtonFace));
constexpr ColorRef Inactive = 0xCEDBDE;

std::vector<String> Captions(const TolvaTabs& tabs)
{
    std::vector<String> captions;
    for (int32_t i = 1; i <= tabs.TabCount(); ++i)
        captions.push_back(tabs.Tabs(i));
    return captions;
}

// Reporting and redrawing, member by member, on a strip with the tabs One and Two.

struct MemberCase {
    const char* name;
    std::function<void(TolvaTabs&)> act;
    std::vector<String> reported;
    bool redraws;
};

class TabsMemberTest : public TabsTest, public ::testing::WithParamInterface<MemberCase> { };

TEST_P(TabsMemberTest, ReportsItsKeyAndRedrawsAsItShould)
{
    AddTabs({ u"One", u"Two" });
    ClearRecords();
    const int presents = surface.PresentCount();
    GetParam().act(tabs);
    EXPECT_EQ(site.propertyChanges, GetParam().reported);
    EXPECT_EQ(surface.PresentCount() > presents, GetParam().redraws);
}

INSTANTIATE_TEST_SUITE_P(Members, TabsMemberTest,
    ::testing::Values(
        MemberCase { "BackColor", [](TolvaTabs& t) { t.SetBackColor(0x0000FF); }, { u"BackColor" }, true },
        MemberCase { "ForeColor", [](TolvaTabs& t) { t.SetForeColor(0x0000FF); }, { u"ForeColor" }, true },
        MemberCase { "Enabled", [](TolvaTabs& t) { t.SetEnabled(false); }, { u"Enabled" }, false },
        MemberCase { "Font", [](TolvaTabs& t) { t.SetFont(Font { u"Arial", 12 }); }, { u"Font" }, true },
        MemberCase { "BorderColor", [](TolvaTabs& t) { t.SetBorderColor(1); }, { u"BorderColor" }, true },
        MemberCase {
            "BackColorInactive", [](TolvaTabs& t) { t.SetBackColorInactive(1); }, { u"BackColorInactive" }, true },
        MemberCase { "BackColorBehind", [](TolvaTabs& t) { t.SetBackColorBehind(1); }, { u"BackColorBehind" }, true },
        MemberCase { "TabWidth", [](TolvaTabs& t) { t.SetTabWidth(900); }, { u"TabWidth" }, true },
        MemberCase { "Tabs", [](TolvaTabs& t) { t.SetTabs(2, u"Deux"); }, { u"Tab" }, true },
        MemberCase { "TabData", [](TolvaTabs& t) { t.SetTabData(2, 7); }, { u"TabData" }, false },
        MemberCase { "SelectedItem", [](TolvaTabs& t) { t.SetSelectedItem(2); }, { u"SelectedItem" }, true },
        MemberCase { "SelectedItemUnchanged", [](TolvaTabs& t) { t.SetSelectedItem(-1); }, {}, false },
        MemberCase { "AddItem", [](TolvaTabs& t) { t.AddItem(u"Three"); }, { u"TabCount" }, true },
        MemberCase { "RemoveItem", [](TolvaTabs& t) { t.RemoveItem(1); }, { u"TabCount" }, true },
        MemberCase { "RemoveLastItem", [](TolvaTabs& t) { t.RemoveItem(2); }, {}, true },
        MemberCase { "Clear", [](TolvaTabs& t) { t.Clear(); }, {}, true },
        MemberCase { "Refresh", [](TolvaTabs& t) { t.Refresh(); }, {}, true }),
    [](const auto& info) { return std::string(info.param.name); });

// RemoveItem on One, Two, Three with the data 10, 20, 30 and tab 3 selected.

struct RemoveCase {
    const char* name;
    int32_t index;
    std::vector<String> captions;
    std::vector<int32_t> data;
    int error;
};

class TabsRemoveTest : public TabsTest, public ::testing::WithParamInterface<RemoveCase> { };

TEST_P(TabsRemoveTest, MovesTheLaterTabsDownWithTheirData)
{
    AddTabs({ u"One", u"Two", u"Three" });
    for (int32_t i = 1; i <= 3; ++i)
        tabs.SetTabData(i, 10 * i);
    tabs.SetSelectedItem(3);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.RemoveItem(GetParam().index); }), GetParam().error);
    EXPECT_EQ(Captions(tabs), GetParam().captions);
    std::vector<int32_t> data;
    for (int32_t i = 1; i <= tabs.TabCount(); ++i)
        data.push_back(tabs.TabData(i));
    EXPECT_EQ(data, GetParam().data);
    EXPECT_EQ(tabs.SelectedItem(), 3) << "the selection keeps its number";
}

INSTANTIATE_TEST_SUITE_P(RemoveItem, TabsRemoveTest,
    ::testing::Values(RemoveCase { "LastTabStays", 3, { u"One", u"Two", u"Three" }, { 10, 20, 30 }, 0 },
        RemoveCase { "Second", 2, { u"One", u"Three" }, { 10, 30 }, 0 },
        RemoveCase { "ZeroRemovesTheFirst", 0, { u"Two", u"Three" }, { 20, 30 }, 0 },
        RemoveCase { "PastTheEndDoesNothing", 7, { u"One", u"Two", u"Three" }, { 10, 20, 30 }, 0 },
        RemoveCase { "NegativeIsASubscriptError", -1, { u"One", u"Two", u"Three" }, { 10, 20, 30 }, 9 }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(TabsTest, AnIndexOutsideTheArraysIsTheSubscriptError)
{
    AddTabs({ u"One", u"Two" });
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.Tabs(3); }), 9);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.SetTabs(-1, u"x"); }), 9);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.TabData(3); }), 9);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.SetTabData(3, 1); }), 9);
    EXPECT_EQ(tabs.Tabs(0), u"") << "element 0 exists, unused";

    // AddItem gives the new tab no data.
    tabs.SetTabData(2, 5);
    tabs.RemoveItem(1);
    tabs.AddItem(u"New");
    EXPECT_EQ(Captions(tabs), (std::vector<String> { u"Two", u"New" }));
    EXPECT_EQ(tabs.TabData(1), 5);
    EXPECT_EQ(tabs.TabData(2), 0);
}

// Selecting.

TEST_F(TabsTest, ChangeSeesTheNewTabSelectedAndDrawn)
{
    AddTabs({ u"One", u"Two" });
    std::vector<ColorRef> seen;
    events.hook = [&](const std::string&) { seen = { surface.WindowPixel(5, 5), surface.WindowPixel(125, 5) }; };
    tabs.SetSelectedItem(2);
    EXPECT_EQ(events.log, (std::vector<std::string> { "Change 2" }));
    EXPECT_EQ(seen, (std::vector<ColorRef> { Inactive, ButtonFace }));
}

TEST_F(TabsTest, CancellingChangeRestoresTheOldTabWithoutASecondChange)
{
    AddTabs({ u"One", u"Two" });
    tabs.SetSelectedItem(1);
    ClearRecords();
    events.cancelChange = true;
    tabs.SetSelectedItem(2);
    EXPECT_EQ(tabs.SelectedItem(), 1);
    EXPECT_EQ(events.log, (std::vector<std::string> { "Change 2" }));
    EXPECT_EQ(site.propertyChanges, (std::vector<String> { u"SelectedItem", u"SelectedItem" }));
    EXPECT_EQ(surface.WindowPixel(5, 5), ButtonFace);
    EXPECT_EQ(surface.WindowPixel(125, 5), Inactive);
}

TEST_F(TabsTest, ClearKeepsTheSelectionForTheNextTabs)
{
    AddTabs({ u"One", u"Two" });
    tabs.SetSelectedItem(1);
    ClearRecords();
    tabs.Clear();
    EXPECT_EQ(tabs.TabCount(), 0);
    EXPECT_EQ(tabs.SelectedItem(), 1);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.Tabs(1); }), 9);
    tabs.AddItem(u"New");
    EXPECT_EQ(surface.WindowPixel(5, 5), ButtonFace) << "tab 1 shows selected again";
    EXPECT_TRUE(events.log.empty());
}

// The hit test, on One, Two, Three of 1700 twips with tab 1 selected.

struct PressCase {
    const char* name;
    int16_t button;
    float x;
    float y;
    int32_t selected;
    std::vector<std::string> log;
};

class TabsPressTest : public TabsTest, public ::testing::WithParamInterface<PressCase> { };

TEST_P(TabsPressTest, SelectsTheTabUnderThePressThenPassesItOn)
{
    AddTabs({ u"One", u"Two", u"Three" });
    tabs.SetSelectedItem(1);
    ClearRecords();
    const PressCase& c = GetParam();
    surface.MouseDown(c.button, 0, c.x, c.y);
    EXPECT_EQ(tabs.SelectedItem(), c.selected);
    EXPECT_EQ(events.log, c.log);
}

INSTANTIATE_TEST_SUITE_P(HitTest, TabsPressTest,
    ::testing::Values(PressCase { "GapCountsForTheTabBefore", 1, 1760, 100, 1, { "MouseDown 1 0 1760 100" } },
        PressCase { "NextTabStartsAfterTheGap", 1, 1775, 100, 2, { "Change 2", "MouseDown 1 0 1775 100" } },
        PressCase { "HalfATwipRoundsToEven", 1, 1774.5f, 100, 1, { "MouseDown 1 0 1774 100" } },
        PressCase { "AnyButtonSelects", 2, 3600, 100, 3, { "Change 3", "MouseDown 2 0 3600 100" } },
        PressCase { "BelowTheRowChangesNothing", 1, 1800, RowHeight, 1, { "MouseDown 1 0 1800 210" } },
        PressCase { "PastTheLastTabChangesNothing", 1, 5400, 100, 1, { "MouseDown 1 0 5400 100" } }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(TabsTest, APressWithoutTabsOnlyPassesOn)
{
    surface.MouseDown(1, 0, 10, 10);
    EXPECT_EQ(tabs.SelectedItem(), -1);
    EXPECT_EQ(events.log, (std::vector<std::string> { "MouseDown 1 0 10 10" }));
}

TEST_F(TabsTest, ATabPitchOfZeroIsADivisionByZero)
{
    AddTabs({ u"One" });
    tabs.SetTabWidth(-75);
    EXPECT_EQ(RunTimeErrorOf([&] { surface.MouseDown(1, 0, 10, 10); }), 11);
}

// Access keys: one character per tab that marks one, and its place in that string is the tab.

struct AccessCase {
    const char* name;
    std::vector<const char16_t*> captions;
    String keys;
    char16_t pressed;
    int32_t selected;
};

class TabsAccessKeyTest : public TabsTest, public ::testing::WithParamInterface<AccessCase> { };

TEST_P(TabsAccessKeyTest, SelectsTheTabAtTheKeysPlace)
{
    for (const char16_t* caption : GetParam().captions)
        tabs.AddItem(caption);
    EXPECT_EQ(surface.AccessKeys(), GetParam().keys);
    EXPECT_TRUE(surface.AccessKey(GetParam().pressed));
    EXPECT_EQ(tabs.SelectedItem(), GetParam().selected);
}

INSTANTIATE_TEST_SUITE_P(AccessKeys, TabsAccessKeyTest,
    ::testing::Values(AccessCase { "EveryTabMarked", { u"&File", u"E&dit" }, u"Fd", u'D', 2 },
        AccessCase { "FirstTabUnmarked", { u"Plain", u"&Next" }, u"N", u'n', 1 },
        AccessCase { "DoubledAmpersandMarksNothing", { u"A&&B", u"&Go", u"T&ax" }, u"Ga", u'a', 2 }),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(TabsTest, TheAccessKeysAreRebuiltOnEveryRedraw)
{
    AddTabs({ u"Plain", u"&Next" });
    tabs.SetTabs(1, u"&Plain");
    EXPECT_EQ(surface.AccessKeys(), u"PN");
    tabs.Clear();
    EXPECT_EQ(surface.AccessKeys(), u"");
}

// Everything else is passed on unchanged.

TEST_F(TabsTest, ClicksKeysAndMovesArePassedOn)
{
    AddTabs({ u"One" });
    surface.Click();
    surface.DblClick();
    surface.KeyDown(37, 1);
    surface.KeyPress(65);
    surface.KeyUp(37, 1);
    surface.MouseMove(0, 0, 30, 45);
    surface.MouseUp(2, 4, 30, 45);
    EXPECT_EQ(events.log,
        (std::vector<std::string> { "Click", "DblClick", "KeyDown 37 1", "KeyPress 65", "KeyUp 37 1",
            "MouseMove 0 0 30 45", "MouseUp 2 4 30 45" }));
    EXPECT_EQ(tabs.SelectedItem(), -1);
}

// Persistence.

TEST_F(TabsTest, WritesItsKeysInOrderWithTheArraysInline)
{
    AddTabs({ u"One", u"Two" });
    tabs.SetTabData(2, 5);
    MemoryPropertyBag bag;
    tabs.WriteProperties(bag);
    const std::vector<String> expected { u"BackColor", u"ForeColor", u"Enabled", u"TabsCount", u"Tabs1", u"Tabs2",
        u"BorderColor", u"TabCount", u"SelectedItem", u"TabDataCount", u"TabData1", u"TabData2", u"BackColorInactive",
        u"BackColorBehind", u"TabWidth", u"Font" };
    EXPECT_EQ(bag.KeysOf(OperationKind::Write), expected);
    EXPECT_EQ(bag.KeysOf(OperationKind::Read), std::vector<String> {});

    TolvaTabs loaded { surface, site };
    bag.ClearOperations();
    loaded.ReadProperties(bag);
    EXPECT_EQ(bag.KeysOf(OperationKind::Read), expected);
    EXPECT_EQ(Captions(loaded), (std::vector<String> { u"One", u"Two" }));
    EXPECT_EQ(loaded.TabData(1), 0) << "a zero is saved too";
    EXPECT_EQ(loaded.TabData(2), 5);
    EXPECT_NE(bag.Find(u"TabData1"), nullptr);
}

TEST_F(TabsTest, TabCountIsReadOnItsOwn)
{
    MemoryPropertyBag bag;
    bag.Set(u"TabsCount", int32_t(1));
    bag.Set(u"Tabs1", u"&Only");
    bag.Set(u"TabCount", int32_t(3));
    tabs.ReadProperties(bag);
    EXPECT_EQ(tabs.TabCount(), 3);
    EXPECT_EQ(tabs.Tabs(1), u"&Only");
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.Tabs(2); }), 9);
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.TabData(1); }), 9);
    EXPECT_EQ(surface.AccessKeys(), u"O");
    surface.MouseDown(1, 0, 3600, 100);
    EXPECT_EQ(tabs.SelectedItem(), 3) << "the count, not the captions, bounds the hit test";
}

TEST_F(TabsTest, ArrayCountsABagCannotHoldAreRefused)
{
    MemoryPropertyBag bag;
    bag.Set(u"TabsCount", int32_t(-1));
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.ReadProperties(bag); }), 9);
    bag.Set(u"TabsCount", int32_t(0));
    bag.Set(u"TabDataCount", int32_t(1000000000));
    EXPECT_EQ(RunTimeErrorOf([&] { tabs.ReadProperties(bag); }), 7);
}

} // namespace
} // namespace tolva::testing
