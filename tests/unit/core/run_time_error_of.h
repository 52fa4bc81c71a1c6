#pragma once
#include "core/automation_error.h"
#include <cstdint>

namespace tolva {

// Runs f and returns the number of the run-time error it threw, 0 when it threw none.
template <typename F> int RunTimeErrorOf(F&& f)
{
    try {
        f();
    } catch (const AutomationError& e) {
        return int(uint32_t(e.HResult()) - 0x800A0000u);
    }
    return 0;
}

} // namespace tolva
