#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// The module this code is linked into: TolvaKit.dll, or the program that links it statically.
HINSTANCE ThisModule();

} // namespace tolva::win32
