#include "core/border_style.h"
#include "core/automation_error.h"

namespace tolva {

int16_t SurfaceBorderStyle(int32_t style)
{
    if (style != 0 && style != 1)
        throw AutomationError::RunTime(RunTimeError::InvalidPropertyValue);
    return int16_t(style);
}

} // namespace tolva
