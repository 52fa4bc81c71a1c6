#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// Shows the library's about dialog modally over owner (may be null) and returns when the user
// closes it with its button, Enter, Escape or the window's close box.
void ShowAboutBox(HWND owner);

} // namespace tolva::win32
