#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tolva {

// A mouse event as the logs record it: "MouseDown 1 0 300 75" (button, shift, then x and y in
// whole twips).
inline std::string MouseEventText(const char* what, int16_t button, int16_t shift, float x, float y)
{
    return std::string(what) + " " + std::to_string(button) + " " + std::to_string(shift) + " " + std::to_string(int(x))
        + " " + std::to_string(int(y));
}

// Records Click, DblClick and the mouse events of a control as text, in the order they were
// raised. Events is a control's events interface with just those (TolvaLabelEvents,
// ctlScrollBoxEvents).
template <class Events> class MouseEventLog final : public Events {
public:
    void Click() override { log.push_back("Click"); }
    void DblClick() override { log.push_back("DblClick"); }
    void MouseDown(int16_t& b, int16_t& s, float& x, float& y) override
    {
        log.push_back(MouseEventText("MouseDown", b, s, x, y));
    }
    void MouseMove(int16_t& b, int16_t& s, float& x, float& y) override
    {
        log.push_back(MouseEventText("MouseMove", b, s, x, y));
    }
    void MouseUp(int16_t& b, int16_t& s, float& x, float& y) override
    {
        log.push_back(MouseEventText("MouseUp", b, s, x, y));
    }

    std::vector<std::string> log;
};

// Records the events of a control that also takes keys (Click, DblClick, KeyDown, KeyPress,
// KeyUp and the mouse events) as text, in the order they were raised, and runs an optional hook
// inside each handler as a host's event code would.
template <class Events> class KeyAndMouseEventLog : public Events {
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

protected:
    void Record(const std::string& event)
    {
        log.push_back(event);
        if (hook)
            hook(event);
    }
};

} // namespace tolva
