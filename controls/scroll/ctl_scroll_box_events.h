#pragma once
#include "core/mouse_events.h"

namespace tolva {

// The events of ctlScrollBox, raised unchanged from its surface's own, coordinates in the box's
// own scale.
using ctlScrollBoxEvents = MouseEvents;

} // namespace tolva
