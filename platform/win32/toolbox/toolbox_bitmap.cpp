#include "platform/win32/toolbox/toolbox_bitmap.h"

namespace tolva::win32 {

namespace {

struct ToolboxBitmap {
    std::wstring_view className;
    int resourceId;
};

constexpr ToolboxBitmap Bitmaps[] = {
#include "toolbox_bitmap_ids.inc"
};

} // namespace

int ToolboxBitmapOf(std::wstring_view className)
{
    for (const ToolboxBitmap& bitmap : Bitmaps)
        if (bitmap.className == className)
            return bitmap.resourceId;
    return 0;
}

} // namespace tolva::win32
