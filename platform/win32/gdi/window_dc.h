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

// The device context of a window's whole area, frame included (for WM_NCPAINT).
class WholeWindowDc {
public:
    explicit WholeWindowDc(HWND window)
        : m_window(window)
        , m_dc(GetWindowDC(window))
    { }
    ~WholeWindowDc()
    {
        if (m_dc)
            ReleaseDC(m_window, m_dc);
    }
    WholeWindowDc(const WholeWindowDc&) = delete;
    WholeWindowDc& operator=(const WholeWindowDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

// A paint of WM_PAINT: BeginPaint here, EndPaint when it goes, however the painting ends.
class PaintDc {
public:
    explicit PaintDc(HWND window)
        : m_window(window)
        , m_dc(BeginPaint(window, &m_paint))
    { }
    ~PaintDc() { EndPaint(m_window, &m_paint); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint = {};
    HDC m_dc;
};

} // namespace tolva::win32
