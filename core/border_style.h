#pragma once
#include <cstdint>

namespace tolva {

// A control's border as its surface takes it: 0 none, 1 the fixed single border. Like a form's
// own BorderStyle, any other value is refused with Invalid property value (380).
int16_t SurfaceBorderStyle(int32_t style);

} // namespace tolva
