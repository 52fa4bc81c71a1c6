#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of TolvaList, in their dispatch order 1 to 9. Arguments are references: the
// handler may change them, as the host's event sink may.
class TolvaListEvents : public KeyAndMouseEvents {
public:
    // ListIndex took another row.
    virtual void SelectionChanged() { }
};

} // namespace tolva
