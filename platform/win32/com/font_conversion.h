#pragma once
#include "core/font.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>
#include <olectl.h>

namespace tolva::win32 {

// A new standard font object with the given attributes.
ComPtr<IFont> CreateStdFont(const Font& font);

// The attributes of a font object.
Font ReadFont(IFont* font);

// The font interface of an object handed over in a VARIANT (VT_DISPATCH or VT_UNKNOWN, also by
// reference); empty when the value is no font object.
ComPtr<IFont> FontOf(const VARIANT& value);

} // namespace tolva::win32
