#pragma once
#include "controls/command/tolva_command_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaCommand's events as the dispinterface __TolvaCommand raises them: Click 1, DblClick 2,
// KeyDown 3, KeyPress 4, KeyUp 5, MouseDown 6, MouseMove 7, MouseUp 8, the arguments by
// reference to the control's own variables.
class TolvaCommandEventForwarder final : public MouseEventForwarder<TolvaCommandEvents, 6> {
public:
    using MouseEventForwarder::MouseEventForwarder;

    void KeyDown(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(3, keyCode, shift); }
    void KeyPress(int16_t& keyAscii) override { m_raiser.RaiseByReference(4, keyAscii); }
    void KeyUp(int16_t& keyCode, int16_t& shift) override { m_raiser.RaiseByReference(5, keyCode, shift); }
};

} // namespace tolva::win32
