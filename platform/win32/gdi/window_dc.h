#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// The device context of a window's client area (the screen's for a null window), released with
// this object.
class WindowDc {
public:
    explicit WindowDc(HWND window)
        : m_window(window)
        , m_dc(GetDC(window))
    { }
    ~WindowDc()
    {
        if (m_dc)
            ReleaseDC(m_window, m_dc);
    }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

} // namespace tolva::win32
