#pragma once
#include "controls/list/tolva_list_events.h"
#include "platform/win32/bindings/mouse_event_forwarder.h"

namespace tolva::win32 {

// TolvaList's events as the dispinterface __TolvaList raises them: the key and mouse events
// numbered 1 to 8 as the button's, then SelectionChanged 9.
class TolvaListEventForwarder final : public KeyAndMouseEventForwarder<TolvaListEvents> {
public:
    using KeyAndMouseEventForwarder::KeyAndMouseEventForwarder;

    void SelectionChanged() override { m_raiser.RaiseByReference(9); }
};

} // namespace tolva::win32
