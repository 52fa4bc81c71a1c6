#pragma once
#include "controls/label/tolva_label.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva {

// Records a label's events as text, in the order they were raised.
class LabelEventLog final : public TolvaLabelEvents {
public:
    void Click() override { log.push_back("Click"); }
    void DblClick() override { log.push_back("DblClick"); }
    void MouseDown(int16_t& b, int16_t& s, float& x, float& y) override
    {
        log.push_back(Mouse("MouseDown", b, s, x, y));
    }
    void MouseMove(int16_t& b, int16_t& s, float& x, float& y) override
    {
        log.push_back(Mouse("MouseMove", b, s, x, y));
    }
    void MouseUp(int16_t& b, int16_t& s, float& x, float& y) override { log.push_back(Mouse("MouseUp", b, s, x, y)); }

    static std::string Mouse(const char* what, int16_t b, int16_t s, float x, float y)
    {
        return std::string(what) + " " + std::to_string(b) + " " + std::to_string(s) + " " + std::to_string(int(x))
            + " " + std::to_string(int(y));
    }

    std::vector<std::string> log;
};

// A label 100 x 20 pixels (1500 x 300 twips) without border on a test container.
class LabelTest : public ::testing::Test {
protected:
    LabelTest()
    {
        site.extenderName = u"TolvaLabel7";
        site.extenderWidth = 1500;
        site.extenderHeight = 300;
        surface.Resize(1500, 300);
        label.SetEventListener(&events);
    }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestSite site;
    TolvaLabel label { surface, site };
    LabelEventLog events;
};

} // namespace tolva
