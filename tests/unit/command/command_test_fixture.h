#pragma once
#include "controls/command/tolva_command.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_parent_form.h"
#include "platform/headless/test_site.h"
#include "tests/unit/support/mouse_event_log.h"
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tolva::testing {

// Records a button's events as text, in the order they were raised, and runs an optional hook
// inside each handler as a host's event code would.
class CommandEventLog final : public TolvaCommandEvents {
public:
    void Click() override { Record("Click"); }
    void DblClick() override { Record("DblClick"); }
    void KeyDown(int16_t& k, int16_t& s) override { Record(Key("KeyDown", k, s)); }
    void KeyPress(int16_t& k) override { Record("KeyPress " + std::to_string(k)); }
    void KeyUp(int16_t& k, int16_t& s) override { Record(Key("KeyUp", k, s)); }
    void MouseDown(int16_t& b, int16_t& s, float& x, float& y) override
    {
        Record(MouseEventText("MouseDown", b, s, x, y));
    }
    void MouseMove(int16_t& b, int16_t& s, float& x, float& y) override
    {
        Record(MouseEventText("MouseMove", b, s, x, y));
    }
    void MouseUp(int16_t& b, int16_t& s, float& x, float& y) override { Record(MouseEventText("MouseUp", b, s, x, y)); }

    static std::string Key(const char* what, int16_t k, int16_t s)
    {
        return std::string(what) + " " + std::to_string(k) + " " + std::to_string(s);
    }

    std::vector<std::string> log;
    // Called with the event's text after it is recorded.
    std::function<void(const std::string&)> hook;

private:
    void Record(const std::string& event)
    {
        log.push_back(event);
        if (hook)
            hook(event);
    }
};

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
