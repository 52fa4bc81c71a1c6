#pragma once
#include <cstdint>

namespace tolva {

// The list's enumerations with their published member names, each in a namespace of its own
// (other enumerations of the library reuse names such as tkNone and tkNormal).
namespace tkGridStyles {
enum : int32_t { tkNone = 0, tkGrid = 1, tkBalance = 2 };
}
namespace tkListBorderStyle {
enum : int32_t { tkNormal = 0, tkInset = 1 };
}
namespace tkColumnAlignment {
enum : int32_t { tkColumnLeft = 0, tkColumnRight = 1, tkColumnCenter = 2 };
}

} // namespace tolva
