#pragma once
#include <cstdint>

namespace tolva {

// The drop-down beside the text.
namespace tkInputStyles {
enum : int32_t { tkTextBox = 0, tkCalendar = 1, tkCalculator = 2, tkCombo = 3 };
}

} // namespace tolva
