#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// The Alt key as the thread's keyboard messages leave it, which is what GetKeyState reports,
// followed with a keyboard hook on the thread: a mouse event then reads it without a call to the
// system, where Wine 8 answers GetKeyState through its server on every call, a round trip that
// costs more than a whole repaint. The hook is in place while an object of this class lives on
// the thread.
class AltKeyState {
public:
    AltKeyState();
    ~AltKeyState();
    AltKeyState(const AltKeyState&) = delete;
    AltKeyState& operator=(const AltKeyState&) = delete;

    // Whether Alt is down; asks the system when no hook could be set.
    static bool Down();

private:
    static LRESULT CALLBACK OnKey(int code, WPARAM key, LPARAM flags);
};

} // namespace tolva::win32
