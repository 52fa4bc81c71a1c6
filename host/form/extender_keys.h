#pragma once
#include "core/string.h"

namespace tolva {

// Keys of a control block that belong to the container's extender (position, size, tab order,
// default button ...) rather than to the control's own property bag.
bool IsExtenderKey(StringView key);

// Keys a form designer writes for its own bookkeeping (_ExtentX, _ExtentY, _Version): read and
// dropped, since the extender's Width and Height say the same.
bool IsDesignerKey(StringView key);

} // namespace tolva
