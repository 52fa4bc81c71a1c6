#pragma once
#include <string_view>

namespace tolva::win32 {

// The resource id of the toolbox bitmap drawn for a control class (toolbox/<Class>.txt), or 0
// when none is drawn for it. Form designers load it from the DLL through ToolboxBitmap32.
int ToolboxBitmapOf(std::wstring_view className);

} // namespace tolva::win32
