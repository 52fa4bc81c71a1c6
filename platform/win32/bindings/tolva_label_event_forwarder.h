#pragma once
#include "controls/label/tolva_label_events.h"
#include "platform/win32/com/event_raiser.h"

namespace tolva::win32 {

// TolvaLabel's events as the dispinterface __TolvaLabel raises them (ids 1 to 5), the arguments
// by reference to the control's own variables.
class TolvaLabelEventForwarder final : public TolvaLabelEvents {
public:
    explicit TolvaLabelEventForwarder(EventRaiser& raiser)
        : m_raiser(raiser)
    { }

    void Click() override { m_raiser.RaiseByReference(1); }
    void DblClick() override { m_raiser.RaiseByReference(2); }
    void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(3, button, shift, x, y);
    }
    void MouseMove(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(4, button, shift, x, y);
    }
    void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(5, button, shift, x, y);
    }

private:
    EventRaiser& m_raiser;
};

} // namespace tolva::win32
