#pragma once
#include "controls/command/tolva_command.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_parent_form.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::testing {

using CommandEventLog = KeyAndMouseEventLog<TolvaCommandEvents>;

// A button 120 x 30 pixels (1800 x 450 twips) on a test form, set up as a new instance.
class CommandTest : public ::testing::Test {
protected:
    static constexpr ColorRef Black = 0x000000;
    static constexpr ColorRef Grey = 0x808080;
    static constexpr ColorRef Normal = 0xCEDBDE;
    static constexpr ColorRef Hot = 0xDEE7EF;
    static constexpr ColorRef Pushed = 0xBDCBCE;
    static constexpr ColorRef Disabled = 0x8C969C;

    CommandTest()
    {
        site.extenderName = u"TolvaCommand3";
        site.extenderWidth = 1800;
        site.extenderHeight = 450;
        site.parent = &form;
        surface.Resize(1800, 450);
        button.InitProperties();
        button.SetEventListener(&events);
        surface.Paint();
    }

    ColorRef At(int32_t x, int32_t y) const { return surface.WindowPixel(x, y); }

    headless::WindowTree tree;
    headless::HeadlessSurface surface { tree };
    headless::TestParentForm form;
    headless::TestSite site;
    TolvaCommand button { surface, site };
    CommandEventLog events;
};

} // namespace tolva::testing
