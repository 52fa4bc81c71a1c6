// Times TolvaList, created from the registered TolvaKit.dll and driven through IDispatch::Invoke
// by dispatch id as a compiled client drives it, against the system's ListView in report view
// driven by its messages: the same rows of the same four texts, each control in a visible window
// of 1200 x 800 pixels. Prints a table of the results.
//
//     tolva_wine_list_bench [rows]        (default 1,000,000)
#include "bench/wine/hover_cases.h"
#include "bench/wine/timing.h"
#include "tests/gui/gui_support.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <commctrl.h>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <oleauto.h>
#include <string>
#include <vector>

using namespace tolva::bench;
using tolva::win32::test::Bool;
using tolva::win32::test::BorrowedText;
using tolva::win32::test::InvokeWith;
using tolva::win32::test::Long;
using tolva::win32::test::PumpFor;

namespace {

constexpr int Width = 1200, Height = 800, Columns = 4, Rounds = 5, Repaints = 40;
constexpr DISPID AutoRefreshId = 0x68030017, RowTextId = 0x68030018, ListIndexId = 0x6803001B, AddColumnId = 0x60030022,
                 AddRowId = 0x60030023;

// Seconds that one run of work takes.
double Seconds(const std::function<void()>& work)
{
    return MicrosecondsPerRepetition({ { L"",
                                         [&](int) {
                                             work();
                                             GdiFlush();
                                         } } },
               1, 1)
               .front()
        / 1e6;
}

// The address space the process uses. Wine does not report private bytes, but the heap's growth
// shows here.
SIZE_T UsedAddressSpace()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatusEx(&status);
    return SIZE_T(status.ullTotalVirtual - status.ullAvailVirtual);
}

void Check(HRESULT hr, const char* what)
{
    if (FAILED(hr)) {
        std::fprintf(stderr, "%s failed: 0x%08lX\n", what, static_cast<unsigned long>(hr));
        std::exit(1);
    }
}

// Ten-character texts as a client holds them: a date, a payee, an amount, a balance.
struct Texts {
    Texts()
    {
        for (int i = 0; i < 1024; ++i) {
            const std::wstring n = std::to_wstring(1000 + i);
            for (const std::wstring& text :
                { L"2024-01-" + n.substr(2), L"Payee " + n, L"  -" + n + L".50", L" " + n + L"00.25" }) {
                plain.push_back(text.substr(0, 10));
                bstrs.push_back(SysAllocString(plain.back().c_str()));
            }
        }
    }
    ~Texts()
    {
        for (BSTR text : bstrs)
            SysFreeString(text);
    }
    std::vector<std::wstring> plain;
    std::vector<BSTR> bstrs;
};

HWND Frame(const wchar_t* title)
{
    RECT r = { 0, 0, Width, Height };
    AdjustWindowRect(&r, WS_OVERLAPPEDWINDOW, FALSE);
    HWND frame = CreateWindowExW(0, L"TolvaTimingFrame", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 0,
        0, r.right - r.left, r.bottom - r.top, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    return frame;
}

void Pump()
{
    PumpFor(50);
}

// One full repaint of a window and its children, done at once.
TimedCase Repaint(const wchar_t* name, HWND window)
{
    return { name, [window](int) {
                RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                GdiFlush();
            } };
}

// TolvaList in a container window of ATL: the control, its own window and its IDispatch.
struct HostedList {
    explicit HostedList(const wchar_t* title)
        : frame(Frame(title))
        , control(std::make_unique<AtlControl>(frame, L"TolvaKit.TolvaList", RECT { 0, 0, Width, Height }))
        , window(control->Window())
        , dispatch(control->Dispatch())
    {
        Pump();
    }
    ~HostedList()
    {
        control.reset();
        DestroyWindow(frame);
    }

    void AddColumns(const Texts& texts)
    {
        for (int c = 0; c < Columns; ++c)
            Check(InvokeWith(dispatch, AddColumnId, DISPATCH_METHOD,
                      { BorrowedText(texts.bstrs[size_t(c)]), Long(c < 2 ? 0 : 1), Long(c < 2 ? 2400 : 2700) }, false),
                "AddColumn");
    }
    // AddRow and a RowText assignment per cell, by dispatch id, with AutoRefresh off.
    void Fill(const Texts& texts, int rows)
    {
        Check(InvokeWith(dispatch, AutoRefreshId, DISPATCH_PROPERTYPUT, { Bool(false) }, true), "AutoRefresh");
        for (int r = 1; r <= rows; ++r) {
            InvokeWith(dispatch, AddRowId, DISPATCH_METHOD, {}, false);
            const size_t base = size_t(r % 1024) * Columns;
            for (int c = 1; c <= Columns; ++c)
                InvokeWith(dispatch, RowTextId, DISPATCH_PROPERTYPUT,
                    { Long(r), Long(c), BorrowedText(texts.bstrs[base + size_t(c - 1)]) }, true);
        }
        Check(InvokeWith(dispatch, AutoRefreshId, DISPATCH_PROPERTYPUT, { Bool(true) }, true), "AutoRefresh");
        Check(InvokeWith(dispatch, ListIndexId, DISPATCH_PROPERTYPUT, { Long(rows / 2) }, true), "ListIndex");
        Pump();
    }

    HWND frame;
    std::unique_ptr<AtlControl> control;
    HWND window;
    IDispatch* dispatch;
};

// The system's ListView in report view with the same columns.
struct ListView {
    explicit ListView(const Texts& texts)
    {
        frame = Frame(L"ListView");
        window = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS, 0, 0,
            Width, Height, frame, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(window, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_GRIDLINES | LVS_EX_FULLROWSELECT);
        for (int c = 0; c < Columns; ++c) {
            LVCOLUMNW column = {};
            column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            column.fmt = c < 2 ? LVCFMT_LEFT : LVCFMT_RIGHT;
            column.cx = c < 2 ? 160 : 180;
            column.pszText = const_cast<wchar_t*>(texts.plain[size_t(c)].c_str());
            SendMessageW(window, LVM_INSERTCOLUMNW, WPARAM(c), LPARAM(&column));
        }
        Pump();
    }
    ~ListView() { DestroyWindow(frame); }

    // An item and three sub-item texts per row, with redrawing switched off.
    void Fill(const Texts& texts, int rows)
    {
        SendMessageW(window, WM_SETREDRAW, FALSE, 0);
        for (int r = 0; r < rows; ++r) {
            const size_t base = size_t((r + 1) % 1024) * Columns;
            LVITEMW item = {};
            item.mask = LVIF_TEXT;
            item.iItem = r;
            item.pszText = const_cast<wchar_t*>(texts.plain[base].c_str());
            const auto index = WPARAM(SendMessageW(window, LVM_INSERTITEMW, 0, LPARAM(&item)));
            for (int c = 1; c < Columns; ++c) {
                LVITEMW cell = {};
                cell.iSubItem = c;
                cell.pszText = const_cast<wchar_t*>(texts.plain[base + size_t(c)].c_str());
                SendMessageW(window, LVM_SETITEMTEXTW, index, LPARAM(&cell));
            }
        }
        SendMessageW(window, WM_SETREDRAW, TRUE, 0);
        ListView_SetItemState(window, rows / 2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(window, rows / 2, FALSE);
        Pump();
    }

    HWND frame = nullptr;
    HWND window = nullptr;
};

// One copy of a finished 1200 x 800 image onto a window: the least a repaint can cost.
class Blit {
public:
    explicit Blit(HWND window)
        : m_window(window)
        , m_screen(GetDC(window))
        , m_memory(CreateCompatibleDC(m_screen))
        , m_bitmap(CreateCompatibleBitmap(m_screen, Width, Height))
        , m_old(SelectObject(m_memory, m_bitmap))
    { }
    ~Blit()
    {
        SelectObject(m_memory, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_memory);
        ReleaseDC(m_window, m_screen);
    }
    TimedCase Case()
    {
        return { L"floor: one 1200 x 800 blit", [this](int) {
                    BitBlt(m_screen, 0, 0, Width, Height, m_memory, 0, 0, SRCCOPY);
                    GdiFlush();
                } };
    }

private:
    HWND m_window;
    HDC m_screen;
    HDC m_memory;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
};

LRESULT CALLBACK FrameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    const int rows = argc > 1 ? _wtoi(argv[1]) : 1000000;
    Check(OleInitialize(nullptr), "OleInitialize");
    INITCOMMONCONTROLSEX controls = { sizeof controls, ICC_LISTVIEW_CLASSES };
    InitCommonControlsEx(&controls);
    WNDCLASSW frameClass = {};
    frameClass.lpfnWndProc = FrameProc;
    frameClass.hInstance = GetModuleHandleW(nullptr);
    frameClass.lpszClassName = L"TolvaTimingFrame";
    frameClass.hbrBackground = HBRUSH(COLOR_WINDOW + 1);
    RegisterClassW(&frameClass);
    const Texts texts;
    const double cells = double(rows) * Columns;
    const double characters = cells * 10 * sizeof(wchar_t);

    HostedList list(L"TolvaList");
    list.AddColumns(texts);
    SIZE_T before = UsedAddressSpace();
    const double listFill = Seconds([&] { list.Fill(texts, rows); });
    const double listBytes = (double(UsedAddressSpace()) - double(before) - characters) / cells;

    HostedList small(L"TolvaList, 100 rows");
    small.AddColumns(texts);
    small.Fill(texts, 100);

    ListView view(texts);
    before = UsedAddressSpace();
    const double viewFill = Seconds([&] { view.Fill(texts, rows); });
    const double viewBytes = (double(UsedAddressSpace()) - double(before) - characters) / cells;

    Blit blit(list.window);
    const std::vector<TimedCase> repaints { Repaint(L"TolvaList", list.window),
        Repaint(L"TolvaList, 100 rows", small.window), Repaint(L"ListView", view.window), blit.Case() };
    const std::vector<double> us = MicrosecondsPerRepetition(repaints, Rounds, Repaints);
    const double listRepaint = us[0], smallRepaint = us[1], viewRepaint = us[2], floor = us[3];

    std::printf("| %d rows x %d columns, %d x %d pixels | TolvaList (Invoke by dispatch id) | ListView (report view, "
                "messages) |\n",
        rows, Columns, Width, Height);
    std::printf("|---|---:|---:|\n");
    std::printf("| fill, AutoRefresh off / WM_SETREDRAW off | %.2f s, %.0f cells/s | %.2f s, %.0f cells/s |\n",
        listFill, cells / listFill, viewFill, cells / viewFill);
    std::printf("| fill speed, TolvaList / ListView | %.1fx | |\n", viewFill / listFill);
    std::printf(
        "| memory per cell beyond its characters (address space) | %.1f bytes | %.1f bytes |\n", listBytes, viewBytes);
    std::printf(
        "| full repaint, a selected row in the middle | %.2f ms | %.2f ms |\n", listRepaint / 1000, viewRepaint / 1000);
    std::printf("| full repaint, TolvaList / ListView | %.2f | |\n", listRepaint / viewRepaint);
    std::printf("| full repaint of 100 rows | %.2f ms | |\n", smallRepaint / 1000);
    std::printf("| repaint(%d rows) / repaint(100 rows) | %.3f | |\n", rows, listRepaint / smallRepaint);
    std::printf("| floor: one 1200 x 800 blit | %.2f ms | |\n", floor / 1000);
    OleUninitialize();
    return 0;
}
