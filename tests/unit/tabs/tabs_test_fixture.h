#pragma once
#include "controls/tabs/tolva_tabs.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>

namespace tolva::testing {

// The strip's events as text; Change shows the selection its handler reads ("Change 2") and
// cancels while cancelChange is set.
class TabsEventLog final : public KeyAndMouseEventLog<TolvaTabsEvents> {
public:
    explicit TabsEventLog(const TolvaTabs& tabs)
        : m_tabs(tabs)
    { }

    void Change(bool& cancel) override
    {
        Record("Change " + std::to_string(m_tabs.SelectedItem()));
        cancel = cancelChange;
    }

    bool cancelChange = false;

private:
    const TolvaTabs& m_tabs;
};

// The height of the row of tabs in the default font: a space is 12 pixels, and 2 more.
constexpr float RowHeight = 210;

// A new strip of 400 x 100 pixels (6000 x 1500 twips) in the default font.
class TabsTest : public ::testing::Test {
protected:
    TabsTest()
    {
        surface.Resize(6000, 1500);
        tabs.InitProperties();
        tabs.SetEventListener(&events);
        surface.Paint();
    }

    void AddTabs(std::initializer_list<const char16_t*> captions)
    {
        for (const char16_t* caption : captions)
            tabs.AddItem(caption);
    }
    void ClearRecords()
    {
        events.log.clear();
        site.propertyChanges.clear();
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaTabs tabs { surface, site };
    TabsEventLog events { tabs };
};

} // namespace tolva::testing
