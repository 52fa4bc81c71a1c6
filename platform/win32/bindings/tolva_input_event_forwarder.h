#pragma once
#include "controls/input/tolva_input_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaInput's events as the dispinterface __TolvaInput raises them: Change 1, Click 2,
// DblClick 3, KeyDown 4, KeyPress 5, KeyUp 6, MouseDown 7, MouseMove 8, MouseUp 9, the
// arguments by reference to the control's own variables, so that what a sink leaves in KeyAscii
// is what the text box types.
class TolvaInputEventForwarder final : public MouseEventForwarder<TolvaInputEvents, 7, 2> {
public:
    using MouseEventForwarder::MouseEventForwarder;

    void Change() override { m_raiser.RaiseByReference(1); }
    void KeyDown(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(4, keyCode, shift); }
    void KeyPress(int16_t& keyAscii) override { m_raiser.RaiseByReference(5, keyAscii); }
    void KeyUp(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(6, keyCode, shift); }
};

} // namespace tolva::win32
