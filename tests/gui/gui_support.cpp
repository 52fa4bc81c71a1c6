#include "tests/gui/gui_support.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/memory_dc.h"
#include "platform/win32/gdi/selection.h"
#include "platform/win32/gdi/window_dc.h"
#include <map>

namespace tolva::win32::test {

int GdiObjectCount()
{
    if (DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS))
        return int(count);
    // Wine accepts a handle without its upper word as the table index it stands for.
    int count = 0;
    for (uintptr_t index = 1; index < 0x10000; ++index)
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(index)))
            ++count;
    return count;
}

bool PumpUntil(const std::function<bool()>& done, DWORD timeoutMs)
{
    const DWORD start = GetTickCount();
    while (!done()) {
        if (GetTickCount() - start > timeoutMs)
            return false;
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (!done())
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
    return true;
}

void PumpFor(DWORD milliseconds)
{
    const DWORD start = GetTickCount();
    PumpUntil([&] { return GetTickCount() - start >= milliseconds; }, milliseconds + 1000);
}

namespace {
std::map<UINT_PTR, ModalDriver*>& Drivers()
{
    static std::map<UINT_PTR, ModalDriver*> drivers;
    return drivers;
}
} // namespace

ModalDriver::ModalDriver(std::function<bool()> action, UINT intervalMs)
    : m_action(std::move(action))
    , m_start(GetTickCount())
{
    m_timer = SetTimer(nullptr, 0, intervalMs, &ModalDriver::OnTimer);
    Drivers()[m_timer] = this;
}

ModalDriver::~ModalDriver()
{
    KillTimer(nullptr, m_timer);
    Drivers().erase(m_timer);
}

void CALLBACK ModalDriver::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    auto it = Drivers().find(id);
    if (it == Drivers().end())
        return;
    ModalDriver& driver = *it->second;
    if (driver.m_done || GetTickCount() - driver.m_start > 10000)
        return;
    driver.m_done = driver.m_action();
}

Pixels Pixels::OfWindow(HWND window)
{
    RECT client {};
    GetClientRect(window, &client);
    WindowDc dc(window);
    return OfDc(dc.Get(), client.right, client.bottom);
}

Pixels Pixels::OfDc(HDC source, int width, int height)
{
    Pixels pixels;
    pixels.m_width = width;
    pixels.m_height = height;
    pixels.m_pixels.resize(size_t(width) * size_t(height));
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    GdiObject<HBITMAP> dib(CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    MemoryDc dc(source);
    {
        Selection selected(dc.Get(), dib.Get());
        BitBlt(dc.Get(), 0, 0, width, height, source, 0, 0, SRCCOPY);
    }
    GdiFlush();
    const auto* rgbQuads = static_cast<const uint32_t*>(bits);
    for (size_t i = 0; i < pixels.m_pixels.size(); ++i) {
        const uint32_t q = rgbQuads[i]; // 0x00RRGGBB in memory order B, G, R
        pixels.m_pixels[i] = ((q & 0xFF) << 16) | (q & 0xFF00) | ((q >> 16) & 0xFF);
    }
    return pixels;
}

int Pixels::Count(uint32_t color, int left, int top, int right, int bottom) const
{
    int count = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            if (At(x, y) == color)
                ++count;
    return count;
}

int Pixels::DifferencesFrom(const Pixels& other) const
{
    int differences = 0;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            differences += At(x, y) != other.At(x, y);
    return differences;
}

TestWindow::TestWindow(int width, int height, const wchar_t* title)
{
    static const ATOM windowClass = [] {
        WNDCLASSW wc {};
        wc.lpfnWndProc = DefWindowProcW;
        wc.hInstance = GetModuleHandleW(nullptr);
        wc.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        wc.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        wc.lpszClassName = L"TolvaTestWindow";
        return RegisterClassW(&wc);
    }();
    RECT frame { 0, 0, width, height };
    AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    m_window = CreateWindowExW(0, MAKEINTATOM(windowClass), title, WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN,
        40, 40, frame.right - frame.left, frame.bottom - frame.top, nullptr, nullptr, GetModuleHandleW(nullptr),
        nullptr);
    UpdateWindow(m_window);
}

TestWindow::~TestWindow()
{
    DestroyWindow(m_window);
}

namespace {

BOOL CALLBACK CollectWindow(HWND window, LPARAM list)
{
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

} // namespace

std::vector<HWND> ChildWindows(HWND parent)
{
    std::vector<HWND> windows;
    EnumChildWindows(parent, &CollectWindow, LPARAM(&windows));
    return windows;
}

std::vector<HWND> ThreadWindows()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), &CollectWindow, LPARAM(&windows));
    return windows;
}

std::vector<HWND> ThreadWindowsOf(const wchar_t* windowClass, bool visibleOnly)
{
    std::vector<HWND> found;
    for (HWND window : ThreadWindows())
        if (ClassOf(window) == windowClass && (!visibleOnly || IsWindowVisible(window)))
            found.push_back(window);
    return found;
}

std::vector<HWND> Children(HWND parent)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

std::wstring ClassOf(HWND window)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

std::wstring TextOf(HWND window)
{
    wchar_t text[256] = {};
    GetWindowTextW(window, text, 256);
    return text;
}

void TypeInto(HWND edit, std::wstring_view text)
{
    SendMessageW(edit, EM_SETSEL, 0, -1);
    for (wchar_t c : text)
        SendMessageW(edit, WM_CHAR, WPARAM(c), 1);
}

RECT PlaceIn(HWND window, HWND reference)
{
    RECT rect {};
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, reference, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace tolva::win32::test
