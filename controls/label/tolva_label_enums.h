#pragma once
#include <cstdint>

namespace tolva {

// Enumerations keep their published member names; each sits in a namespace of its own because
// different enumerations of the library reuse member names (tkLeft, None).
namespace tkLabelBorderStyle {
enum : int32_t { None = 0, Inset = 1 };
}
namespace tkLabelAlignment {
enum : int32_t { tkAlignLeft = 0, tkAlignCenter = 1 };
}
namespace tkArrowIcon {
enum : int32_t {
    tkArrowLeft = 0,
    tkArrowRight = 1,
    tkArrowUp = 2,
    tkArrowDown = 3,
    tkPointerLeft = 4,
    tkPointerRight = 5,
};
}
namespace tkArrowPosition {
enum : int32_t { tkNone = 0, tkLeft = 1, tkRight = 2, tkEnd = 3 };
}

} // namespace tolva
