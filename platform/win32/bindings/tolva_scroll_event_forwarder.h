#pragma once
#include "controls/scroll/tolva_scroll_events.h"
#include "platform/win32/com/event_raiser.h"

namespace tolva::win32 {

// TolvaScroll's events as the dispinterface __TolvaScroll raises them. The control raises only
// Change (6) and Scroll (7); ids 1 to 5, the mouse events, are declared for the container alone.
class TolvaScrollEventForwarder final : public TolvaScrollEvents {
public:
    explicit TolvaScrollEventForwarder(EventRaiser& raiser)
        : m_raiser(raiser)
    { }

    void Change() override { m_raiser.RaiseByReference(6); }
    void Scroll() override { m_raiser.RaiseByReference(7); }

private:
    EventRaiser& m_raiser;
};

} // namespace tolva::win32
