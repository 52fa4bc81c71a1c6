#pragma once
#include "controls/label/tolva_label.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>

namespace tolva {

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
    MouseEventLog<TolvaLabelEvents> events;
};

} // namespace tolva
