#pragma once
#include "pages/property_page.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/pages/control_targets.h"
#include <gtest/gtest.h>
#include <list>

namespace tolva {

// A control on a form in the designer: its own surface and a site in design mode that records
// PropertyChanged.
template <class Control> struct DesignedControl {
    explicit DesignedControl(headless::WindowTree& tree)
        : surface(tree)
    {
        site.userMode = false;
        control.InitProperties();
        site.propertyChanges.clear();
    }
    headless::HeadlessSurface surface;
    headless::TestSite site;
    Control control { surface, site };
};

// A property page as the designer drives it, with the controls it may be given.
template <class Page> class PageHarness : private PageStatusListener {
public:
    PageHarness()
    {
        page.SetStatusListener(this);
        surface.Resize(page.Width(), page.Height());
        surface.Show();
    }

    template <class Control> Control& NewControl()
    {
        auto& placed = *static_cast<DesignedControl<Control>*>(
            m_controls.emplace_back(std::make_shared<DesignedControl<Control>>(tree)).get());
        return placed.control;
    }
    template <class... Control> void Select(Control&... controls)
    {
        page.SetObjects({ targets::Of(controls)... });
    }
    static void ClickOn(Surface& part)
    {
        auto& window = dynamic_cast<headless::HeadlessSurface&>(part);
        window.MouseDown(1, 0, 30, 30);
        window.MouseUp(1, 0, 30, 30);
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    Page page { surface, site };
    int statusChanges = 0;

private:
    void OnStatusChange() override { ++statusChanges; }
    std::list<std::shared_ptr<void>> m_controls;
};

template <class Page> class PageTest : public ::testing::Test, public PageHarness<Page> { };

} // namespace tolva
