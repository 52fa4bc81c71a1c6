#pragma once
#include "controls/command/tolva_command_events.h"
#include "platform/win32/com/event_raiser.h"

namespace tolva::win32 {

// TolvaCommand's events as the dispinterface __TolvaCommand raises them (ids 1 to 8), the
// arguments by reference to the control's own variables.
class TolvaCommandEventForwarder final : public TolvaCommandEvents {
public:
    explicit TolvaCommandEventForwarder(EventRaiser& raiser)
        : m_raiser(raiser)
    { }

    void Click() override { m_raiser.RaiseByReference(1); }
    void DblClick() override { m_raiser.RaiseByReference(2); }
    void KeyDown(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(3, keyCode, shift); }
    void KeyPress(int16_t& keyAscii) override { m_raiser.RaiseByReference(4, keyAscii); }
    void KeyUp(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(5, keyCode, shift); }
    void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(6, button, shift, x, y);
    }
    void MouseMove(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(7, button, shift, x, y);
    }
    void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(8, button, shift, x, y);
    }

private:
    EventRaiser& m_raiser;
};

} // namespace tolva::win32
