#pragma once
#include "controls/scroll/tolva_scroll.h"
#include "core/memory_property_bag.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <gtest/gtest.h>
#include <vector>

namespace tolva {

class ScrollEventLog final : public TolvaScrollEvents {
public:
    explicit ScrollEventLog(const TolvaScroll& scroll)
        : m_scroll(scroll)
    { }
    void Change() override { changes.push_back(m_scroll.Value()); }
    void Scroll() override { scrolls.push_back(m_scroll.Value()); }

    std::vector<int32_t> changes; // Value as each event was raised
    std::vector<int32_t> scrolls;

private:
    const TolvaScroll& m_scroll;
};

// A new scroll bar 255 x 3000 twips at run time: the arrows take 255 twips at each end, which
// leaves a track of 2490 twips, 2400 of them free around the 90-twip slider.
class ScrollTest : public ::testing::Test {
protected:
    ScrollTest()
    {
        scroll.SetEventListener(&events);
        scroll.InitProperties();
        surface.Resize(255, 3000);
        surface.Show();
    }

    headless::HeadlessSurface& Up() { return *surface.Children().at(0); }
    headless::HeadlessSurface& Down() { return *surface.Children().at(1); }
    headless::HeadlessSurface& Slider() { return *surface.Children().at(2); }
    void Advance(int64_t milliseconds) { tree.Clock().Advance(milliseconds); }
    // Reads a bag holding just these values, as a loaded form would.
    void Load(std::initializer_list<std::pair<const char16_t*, Variant>> values)
    {
        MemoryPropertyBag bag;
        for (const auto& [key, value] : values)
            bag.Set(key, value);
        scroll.ReadProperties(bag);
    }
    void Clear()
    {
        events.changes.clear();
        events.scrolls.clear();
        site.propertyChanges.clear();
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaScroll scroll { surface, site };
    ScrollEventLog events { scroll };
};

} // namespace tolva
