#pragma once
#include "controls/tabs/tolva_tabs_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaTabs' events as the dispinterface __TolvaTabs raises them: those of a button, then
// Change (9), whose rCancel a sink sets to take the new selection back.
class TolvaTabsEventForwarder final : public KeyAndMouseEventForwarder<TolvaTabsEvents> {
public:
    using KeyAndMouseEventForwarder::KeyAndMouseEventForwarder;

    void Change(bool& cancel) override { m_raiser.RaiseBooleanByReference(9, cancel); }
};

} // namespace tolva::win32
