#pragma once
#include "platform/win32/windows_api.h"
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tolva::win32::test {

// The number of GDI objects the process holds. GetGuiResources where the system implements it;
// under Wine, whose GetGuiResources is a stub, the handle table is probed index by index.
int GdiObjectCount();

// Dispatches the thread's messages until done() or the time runs out; returns done().
bool PumpUntil(const std::function<bool()>& done, DWORD timeoutMs = 2000);
void PumpFor(DWORD milliseconds);

// The windows EnumChildWindows and EnumThreadWindows visit, in their order. (Their callbacks are
// stdcall on 32-bit Windows, which a lambda does not convert to.)
std::vector<HWND> ChildWindows(HWND parent);
std::vector<HWND> ThreadWindows();
// The thread's top-level windows of one class (only the visible ones when visibleOnly).
std::vector<HWND> ThreadWindowsOf(const wchar_t* windowClass, bool visibleOnly = false);
// A window's own children, first to last (not their children).
std::vector<HWND> Children(HWND parent);

std::wstring ClassOf(HWND window);
std::wstring TextOf(HWND window);
// Types text into an edit box as the keyboard would, over what it holds.
void TypeInto(HWND edit, std::wstring_view text);
// A window's rectangle in the client coordinates of another window (of the screen for nullptr).
RECT PlaceIn(HWND window, HWND reference);

// Runs action from inside whatever modal loop the thread is in once it has been polling for
// delayMs, then keeps polling until the action returns true (or ten seconds pass).
class ModalDriver {
public:
    explicit ModalDriver(std::function<bool()> action, UINT intervalMs = 20);
    ~ModalDriver();
    ModalDriver(const ModalDriver&) = delete;
    ModalDriver& operator=(const ModalDriver&) = delete;
    bool Done() const { return m_done; }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    std::function<bool()> m_action;
    UINT_PTR m_timer = 0;
    DWORD m_start = 0;
    bool m_done = false;
};

// The pixels of a window's client area (or a device context) as 0x00BBGGRR values.
class Pixels {
public:
    static Pixels OfWindow(HWND window);
    static Pixels OfDc(HDC dc, int width, int height);

    int Width() const { return m_width; }
    int Height() const { return m_height; }
    // Outside the picture (a window that was never created has none) the answer is NoPixel, so a
    // test fails on the colour instead of reading past the pixels.
    static constexpr uint32_t NoPixel = 0xFFFFFFFF;
    uint32_t At(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < m_width && y < m_height ? m_pixels[size_t(y) * size_t(m_width) + size_t(x)] : NoPixel;
    }
    // How many pixels of the rectangle have this colour.
    int Count(uint32_t color, int left, int top, int right, int bottom) const;
    int Count(uint32_t color) const { return Count(color, 0, 0, m_width, m_height); }
    // How many pixels differ from other's at the same place; other is at least as large.
    int DifferencesFrom(const Pixels& other) const;

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<uint32_t> m_pixels;
};

// A plain top-level window for tests to put children in; destroyed with this object.
class TestWindow {
public:
    TestWindow(int width, int height, const wchar_t* title = L"TolvaKit test");
    ~TestWindow();
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    HWND Get() const { return m_window; }

private:
    HWND m_window;
};

} // namespace tolva::win32::test
