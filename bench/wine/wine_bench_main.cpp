// Hover repaints of the registered controls under Wine, next to the system push button's full
// repaint and the floor of one fill + blit of the same pixels; then the cost of the single calls
// a repaint is made of, and the GDI objects and memory over many hover repaints. Prints Markdown
// tables. Arguments: [hover repaints for the flatness check, default 100000] [only the controls
// whose name contains this text].
#include "bench/wine/hover_cases.h"
#include "bench/wine/timing.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/memory_dc.h"
#include "platform/win32/gdi/selection.h"
#include "platform/win32/gdi/window_dc.h"
#include "tests/gui/gui_support.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <psapi.h>

using namespace tolva;
using namespace tolva::bench;
using win32::GdiObject;

namespace {

constexpr int Width = 120, Height = 30;
constexpr int Rounds = 7, Repetitions = 400;

RECT Place(int index)
{
    const int top = 10 + index * (Height + 10);
    return { 10, top, 10 + Width, top + Height };
}

void Pump()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// A mouse move inside the window, a different pixel each time, as the pointer crosses it.
void MoveOver(HWND window, int iteration)
{
    RECT client;
    GetClientRect(window, &client);
    const int span = std::max(1, int(client.right) - 2);
    SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(1 + iteration % span, client.bottom / 2));
}

SIZE_T WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters {};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

void PrintTimes(const wchar_t* title, const std::vector<TimedCase>& cases, const std::vector<double>& times,
    double button, double blit)
{
    std::wprintf(L"\n| %ls | us per call | x system button | x fill + blit |\n|---|---:|---:|---:|\n", title);
    for (size_t i = 0; i < cases.size(); ++i)
        std::wprintf(L"| %ls | %.1f | %.2f | %.1f |\n", cases[i].name.c_str(), times[i], times[i] / button,
            times[i] / blit);
}

// The calls a repaint is made of, each alone, on the same kind of window and image.
std::vector<TimedCase> SingleCalls(HWND window, HDC image, HFONT font)
{
    return {
        { L"SetCapture (every move over a control)", [window](int) { SetCapture(window); } },
        { L"ReleaseCapture", [](int) { ReleaseCapture(); } },
        { L"GetFocus", [](int) { GetFocus(); } },
        { L"GetKeyState (Alt for a mouse event)", [](int) { GetKeyState(VK_MENU); } },
        { L"GetDC + ReleaseDC of the window", [window](int) { win32::WindowDc dc(window); } },
        { L"CreateCompatibleDC + CreateCompatibleBitmap of a window, 120 x 30, + delete", [window](int) {
              win32::WindowDc screen(window);
              win32::MemoryDc dc(screen.Get());
              GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(screen.Get(), Width, Height));
              win32::Selection selected(dc.Get(), bitmap.Get());
          } },
        { L"CreateCompatibleDC(null) + 32-bit DIB section 120 x 30 + delete (a canvas)", [](int) {
              win32::MemoryDc dc(nullptr);
              BITMAPINFO info {};
              info.bmiHeader = { sizeof(BITMAPINFOHEADER), Width, -Height, 1, 32, BI_RGB, 0, 0, 0, 0, 0 };
              void* bits = nullptr;
              GdiObject<HBITMAP> bitmap(CreateDIBSection(dc.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
              win32::Selection selected(dc.Get(), bitmap.Get());
          } },
        { L"CreateCompatibleDC(null) + DeleteDC", [](int) { win32::MemoryDc dc(nullptr); } },
        { L"CreateFont + select + delete", [image](int) {
              GdiObject<HFONT> made(CreateFontW(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"MS Sans Serif"));
              win32::Selection selected(image, made.Get());
          } },
        { L"SelectObject of a font and back", [image, font](int) { win32::Selection selected(image, font); } },
        { L"ExtTextOut of one character", [image](int) { ExtTextOutW(image, 4, 4, 0, nullptr, L"N", 1, nullptr); } },
        { L"GetTextExtentPoint32 of one character", [image](int) {
              SIZE size;
              GetTextExtentPoint32W(image, L"N", 1, &size);
          } },
        { L"FillRect of 120 x 30", [image](int) {
              const RECT all { 0, 0, Width, Height };
              FillRect(image, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
          } },
        { L"BitBlt of 120 x 30 to the window", [window, image](int) {
              win32::WindowDc dc(window);
              BitBlt(dc.Get(), 0, 0, Width, Height, image, 0, 0, SRCCOPY);
          } },
    };
}

int Run(int flatRepaints, const std::wstring& only)
{
    win32::test::TestWindow form(Width + 20, 10 + 6 * (Height + 10), L"TolvaKit hover benchmark");
    std::vector<HoverCase> hoverCases = HoverCases();
    std::erase_if(hoverCases, [&](const HoverCase& c) { return c.name.find(only) == std::wstring::npos; });
    std::vector<std::unique_ptr<AtlControl>> controls;
    std::vector<TimedCase> cases;
    for (size_t i = 0; i < hoverCases.size(); ++i) {
        controls.push_back(std::make_unique<AtlControl>(form.Get(), hoverCases[i].progId, Place(int(i))));
        hoverCases[i].pose(*controls.back());
        const HWND target = hoverCases[i].pointerWindow(*controls.back());
        cases.push_back({ hoverCases[i].name, [target](int n) { MoveOver(target, n); } });
    }

    const RECT buttonPlace = Place(int(hoverCases.size()));
    const HWND button = CreateWindowExW(0, L"BUTTON", L"&Open file", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON,
        buttonPlace.left, buttonPlace.top, Width, Height, form.Get(), nullptr, GetModuleHandleW(nullptr), nullptr);
    cases.push_back({ L"system push button, full repaint",
        [button](int) { RedrawWindow(button, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); } });

    // The floor: the same pixels filled off screen and copied to a window.
    const RECT floorPlace = Place(int(hoverCases.size()) + 1);
    const HWND floorWindow = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, floorPlace.left, floorPlace.top,
        Width, Height, form.Get(), nullptr, GetModuleHandleW(nullptr), nullptr);
    win32::WindowDc floorDc(floorWindow);
    win32::MemoryDc image(floorDc.Get());
    GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(floorDc.Get(), Width, Height));
    win32::Selection imageBitmap(image.Get(), bitmap.Get());
    GdiObject<HBRUSH> brush(CreateSolidBrush(RGB(212, 208, 200)));
    cases.push_back({ L"fill + blit of 120 x 30", [&](int) {
                         const RECT all { 0, 0, Width, Height };
                         FillRect(image.Get(), &all, brush.Get());
                         BitBlt(floorDc.Get(), 0, 0, Width, Height, image.Get(), 0, 0, SRCCOPY);
                     } });

    Pump();
    for (const TimedCase& c : cases) // warm: fonts realised, code paged in
        for (int n = 0; n < 50; ++n)
            c.once(n);
    Pump();
    const std::vector<double> times = MicrosecondsPerRepetition(cases, Rounds, Repetitions);
    const double buttonTime = times[times.size() - 2], blitTime = times.back();
    std::wprintf(L"Hover repaint under Wine: one WM_MOUSEMOVE sent to the control's window (hover test, full "
                 L"repaint off screen, copy to the window), %d x %d pixels, median of %d rounds of %d.\n",
        Width, Height, Rounds, Repetitions);
    PrintTimes(L"control", cases, times, buttonTime, blitTime);

    GdiObject<HFONT> font(CreateFontW(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"MS Sans Serif"));
    win32::Selection imageFont(image.Get(), font.Get());
    const std::vector<TimedCase> calls = SingleCalls(floorWindow, image.Get(), font.Get());
    const std::vector<double> callTimes = MicrosecondsPerRepetition(calls, Rounds, Repetitions);
    ReleaseCapture();
    PrintTimes(L"single call", calls, callTimes, buttonTime, blitTime);

    std::wprintf(L"\n| control | hover repaints | GDI objects before | after | working set before | after |\n"
                 L"|---|---:|---:|---:|---:|---:|\n");
    for (size_t i = 0; i < hoverCases.size(); ++i) {
        const int objectsBefore = win32::test::GdiObjectCount();
        const SIZE_T bytesBefore = WorkingSet();
        for (int n = 0; n < flatRepaints; ++n) {
            cases[i].once(n);
            if (n % 1000 == 0)
                Pump();
        }
        Pump();
        std::wprintf(L"| %ls | %d | %d | %d | %zu | %zu |\n", cases[i].name.c_str(), flatRepaints, objectsBefore,
            win32::test::GdiObjectCount(), size_t(bytesBefore), size_t(WorkingSet()));
    }
    ReleaseCapture();
    DestroyWindow(button);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const int flatRepaints = argc > 1 ? std::atoi(argv[1]) : 100000;
    const std::string only = argc > 2 ? argv[2] : "";
    if (FAILED(OleInitialize(nullptr)))
        return 2;
    int status = 0;
    try {
        status = Run(flatRepaints, std::wstring(only.begin(), only.end()));
    } catch (const std::exception& e) {
        std::fprintf(stderr, "%s\n", e.what());
        status = 1;
    }
    OleUninitialize();
    return status;
}
