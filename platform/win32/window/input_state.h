#pragma once
#include "platform/win32/windows_api.h"
#include <cstdint>

namespace tolva::win32 {

// Mouse and key arguments as the controls' events carry them.
namespace InputState {

constexpr int16_t LeftButton = 1;
constexpr int16_t RightButton = 2;
constexpr int16_t MiddleButton = 4;

// The button a WM_xBUTTONDOWN / UP / DBLCLK message is about (0 for other messages).
int16_t ButtonOf(UINT message);
// The buttons held according to a mouse message's wParam: left 1, right 2, middle 4.
int16_t ButtonsHeld(WPARAM wParam);
// Shift 1, Ctrl 2, Alt 4, from the keyboard state of the current message.
int16_t ShiftKeys();
// The same for a mouse message: Shift and Ctrl from its wParam, Alt from AltKeyState (an
// AltKeyState must live on the thread for that to be cheap).
int16_t ShiftKeys(WPARAM mouseWParam);
// Client pixels to twips at 15 twips per pixel; lParam coordinates are signed.
float PixelsToTwips(int pixels);

} // namespace InputState

} // namespace tolva::win32
