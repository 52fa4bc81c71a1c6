#include "platform/win32/window/message_box.h"

namespace tolva::win32 {

int ShowMessageBox(HWND owner, StringView prompt, int style)
{
    const String text(prompt);
    return MessageBoxW(owner, reinterpret_cast<const wchar_t*>(text.c_str()), L"TolvaKit", UINT(style));
}

void Beep()
{
    MessageBeep(MB_OK);
}

} // namespace tolva::win32
