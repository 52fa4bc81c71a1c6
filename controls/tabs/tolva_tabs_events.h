#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaTabs, in their dispatch order 1 to 9. Arguments are references: the
// handler may change them, as the host's event sink may. Change(cancel) is raised after a new
// selection is stored and drawn; setting cancel takes it back.
class TolvaTabsEvents : public KeyAndMouseEvents {
public:
    virtual void Change(bool& /*cancel*/) { }
};

} // namespace tolva
