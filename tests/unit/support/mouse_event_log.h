#pragma once
#include <cstdint>
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

} // namespace tolva
