#pragma once
#include "core/font.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>
#include <olectl.h>

namespace tolva::win32 {

// A new standard font object with the given attributes.
ComPtr<IFont> CreateStdFont(const Font& font);

// The attributes a font object was given. Its getters may report others: Wine's standard font
// answers with the font it realised (another face, the size rounded to whole pixels, the face's
// charset) and keeps that face and charset from then on. So a standard font is read from its
// stream form, which holds what it was given, and its getters serve only a name outside the
// ANSI code page and fonts of other classes.
Font ReadFont(IFont* font);

// The font interface of an object handed over in a VARIANT (VT_DISPATCH or VT_UNKNOWN, also by
// reference); empty when the value is no font object.
ComPtr<IFont> FontOf(const VARIANT& value);

} // namespace tolva::win32
