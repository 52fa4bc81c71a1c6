#include "platform/win32/window/input_state.h"
#include "platform/win32/window/alt_key_state.h"

namespace tolva::win32::InputState {

int16_t ButtonOf(UINT message)
{
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
        return LeftButton;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
        return RightButton;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
        return MiddleButton;
    default:
        return 0;
    }
}

int16_t ButtonsHeld(WPARAM wParam)
{
    int16_t buttons = 0;
    if (wParam & MK_LBUTTON)
        buttons |= LeftButton;
    if (wParam & MK_RBUTTON)
        buttons |= RightButton;
    if (wParam & MK_MBUTTON)
        buttons |= MiddleButton;
    return buttons;
}

int16_t ShiftKeys()
{
    int16_t shift = 0;
    if (GetKeyState(VK_SHIFT) < 0)
        shift |= 1;
    if (GetKeyState(VK_CONTROL) < 0)
        shift |= 2;
    if (GetKeyState(VK_MENU) < 0)
        shift |= 4;
    return shift;
}

// A mouse message carries Shift and Ctrl; Alt is followed from the thread's keyboard messages,
// so that a mouse move asks the system nothing.
int16_t ShiftKeys(WPARAM mouseWParam)
{
    int16_t shift = 0;
    if (mouseWParam & MK_SHIFT)
        shift |= 1;
    if (mouseWParam & MK_CONTROL)
        shift |= 2;
    if (AltKeyState::Down())
        shift |= 4;
    return shift;
}

float PixelsToTwips(int pixels)
{
    return float(pixels) * 15.0f;
}

} // namespace tolva::win32::InputState
