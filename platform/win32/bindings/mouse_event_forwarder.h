#pragma once
#include "platform/win32/com/event_raiser.h"

namespace tolva::win32 {

// The mouse events of a control as its dispinterface declares them: Click (ClickId), DblClick
// (the id after it), and MouseDown, MouseMove and MouseUp at MouseDownId and the two ids after
// it, the arguments by reference to the control's own variables. Events is the control's events
// interface.
template <class Events, DISPID MouseDownId, DISPID ClickId = 1> class MouseEventForwarder : public Events {
public:
    explicit MouseEventForwarder(EventRaiser& raiser)
        : m_raiser(raiser)
    { }

    void Click() override { m_raiser.RaiseByReference(ClickId); }
    void DblClick() override { m_raiser.RaiseByReference(ClickId + 1); }
    void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(MouseDownId, button, shift, x, y);
    }
    void MouseMove(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(MouseDownId + 1, button, shift, x, y);
    }
    void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override
    {
        m_raiser.RaiseByReference(MouseDownId + 2, button, shift, x, y);
    }

protected:
    EventRaiser& m_raiser;
};

// The events of a control that takes keys: Click 1, DblClick 2, KeyDown 3, KeyPress 4, KeyUp 5,
// MouseDown 6, MouseMove 7, MouseUp 8.
template <class Events> class KeyAndMouseEventForwarder : public MouseEventForwarder<Events, 6> {
public:
    using MouseEventForwarder<Events, 6>::MouseEventForwarder;

    void KeyDown(int16_t& keyCode, int16_t& shift) override { this->m_raiser.RaiseByReference(3, keyCode, shift); }
    void KeyPress(int16_t& keyAscii) override { this->m_raiser.RaiseByReference(4, keyAscii); }
    void KeyUp(int16_t& keyCode, int16_t& shift) override { this->m_raiser.RaiseByReference(5, keyCode, shift); }
};

} // namespace tolva::win32
