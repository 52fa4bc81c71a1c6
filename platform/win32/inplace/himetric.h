#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// Extents cross OLE in HIMETRIC (0.01 mm). The controls measure 15 twips to the pixel, that is
// 96 pixels to the inch, and an inch is 2540 HIMETRIC.
inline LONG PixelsToHimetric(LONG pixels)
{
    return MulDiv(pixels, 2540, 96);
}
inline LONG HimetricToPixels(LONG himetric)
{
    return MulDiv(himetric, 96, 2540);
}

} // namespace tolva::win32
