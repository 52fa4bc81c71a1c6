#pragma once
#include "core/ole_color.h"
#include "core/string.h"
#include "core/variant.h"
#include <cstdint>

namespace tolva {

// The drawing state of a scroll box's surface that only persistence sees. Nothing draws with it;
// it is read from the property bag and written back unchanged.
struct ScrollBoxDrawingState {
    float currentX = 0;
    float currentY = 0;
    int16_t drawStyle = 0;
    int16_t drawWidth = 1;
    OleColor fillColor = 0x000000;
    int16_t fillStyle = 1;
    OleColor maskColor = SystemColor::ButtonFace;
    Variant maskPicture; // picture objects pass through as the bag gives them
    Variant picture;
    bool fontTransparent = true;
};

} // namespace tolva
