#pragma once
#include "core/string.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// A modal message box owned by owner, titled as the library's message boxes are; style takes the
// MB_* flags the controls pass (MessageBoxStyle). Returns the button pressed.
int ShowMessageBox(HWND owner, StringView prompt, int style);

// The system's default sound.
void Beep();

} // namespace tolva::win32
