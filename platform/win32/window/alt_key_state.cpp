#include "platform/win32/window/alt_key_state.h"

namespace tolva::win32 {

namespace {

struct ThreadState {
    int users = 0;
    HHOOK hook = nullptr;
    bool down = false;
};

thread_local ThreadState t_state;

} // namespace

AltKeyState::AltKeyState()
{
    if (t_state.users++ == 0) {
        t_state.down = GetKeyState(VK_MENU) < 0;
        t_state.hook = SetWindowsHookExW(WH_KEYBOARD, &AltKeyState::OnKey, nullptr, GetCurrentThreadId());
    }
}

AltKeyState::~AltKeyState()
{
    if (--t_state.users == 0 && t_state.hook) {
        UnhookWindowsHookEx(t_state.hook);
        t_state.hook = nullptr;
    }
}

bool AltKeyState::Down()
{
    return t_state.hook ? t_state.down : GetKeyState(VK_MENU) < 0;
}

// Bit 31 of the flags is the transition: set when the key is released.
LRESULT CALLBACK AltKeyState::OnKey(int code, WPARAM key, LPARAM flags)
{
    if (code == HC_ACTION && (key == VK_MENU || key == VK_LMENU || key == VK_RMENU))
        t_state.down = (flags & (LPARAM(1) << 31)) == 0;
    return CallNextHookEx(nullptr, code, key, flags);
}

} // namespace tolva::win32
