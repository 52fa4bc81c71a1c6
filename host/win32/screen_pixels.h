#pragma once
#include "platform/win32/windows_api.h"
#include <cstdint>
#include <vector>

namespace tolva::host {

// The pixels of a rectangle of a device context (the screen's when null) as 0x00BBGGRR values,
// rows top to bottom.
std::vector<uint32_t> ReadPixels(HDC source, const RECT& area);

} // namespace tolva::host
