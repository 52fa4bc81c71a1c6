#pragma once
#include "core/input_popups.h"

namespace tolva::win32 {

// The pop-up windows of the calling thread, shared by every control created on it.
InputPopups& ThreadPopups();

} // namespace tolva::win32
