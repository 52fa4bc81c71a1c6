#include "bench/wine/hover_cases.h"
#include "platform/win32/com/dispatch_call.h"
#include "platform/win32/com/ole_variant.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <stdexcept>

namespace tolva::bench {

AtlControl::AtlControl(HWND parent, const wchar_t* progId, const RECT& place)
{
    static const HMODULE atl = LoadLibraryW(L"atl.dll");
    using Init = BOOL(WINAPI*)();
    using GetControl = HRESULT(WINAPI*)(HWND, IUnknown**);
    const auto init = reinterpret_cast<Init>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxWinInit")));
    const auto getControl
        = reinterpret_cast<GetControl>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxGetControl")));
    // AtlAxWinInit registers the window class once; its answer on later calls varies.
    if (!init || !getControl)
        throw std::runtime_error("atl.dll or its AtlAxWinInit and AtlAxGetControl are missing");
    init();
    m_container = CreateWindowExW(0, L"AtlAxWin", progId, WS_CHILD | WS_VISIBLE, place.left, place.top,
        place.right - place.left, place.bottom - place.top, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
    win32::ComPtr<IUnknown> control;
    if (!m_container || getControl(m_container, control.Put()) != S_OK)
        throw std::runtime_error("the container could not create the control (is TolvaKit.dll registered?)");
    m_dispatch = control.As<IDispatch>(IID_IDispatch);
    m_window = GetWindow(m_container, GW_CHILD);
    if (!m_dispatch || !m_window)
        throw std::runtime_error("the control has no dispatch interface or no window");
}

AtlControl::~AtlControl()
{
    m_dispatch.Reset();
    DestroyWindow(m_container);
}

void AtlControl::Put(const wchar_t* property, VARIANT value)
{
    win32::OleVariant owned;
    *owned.Put() = value;
    win32::OleVariant ignored;
    win32::DispatchCall::Invoke(m_dispatch.Get(), win32::DispatchCall::IdOf(m_dispatch.Get(), property),
        DISPATCH_PROPERTYPUT, { &owned.Get(), 1 }, ignored);
}

void AtlControl::Call(const wchar_t* method, VARIANT argument)
{
    win32::OleVariant owned;
    *owned.Put() = argument;
    win32::OleVariant ignored;
    win32::DispatchCall::Invoke(m_dispatch.Get(), win32::DispatchCall::IdOf(m_dispatch.Get(), method), DISPATCH_METHOD,
        { &owned.Get(), 1 }, ignored);
}

VARIANT Text(const wchar_t* text)
{
    VARIANT value;
    V_VT(&value) = VT_BSTR;
    V_BSTR(&value) = SysAllocString(text);
    return value;
}

namespace {

using win32::test::Long;

HWND Own(const AtlControl& control)
{
    return control.Window();
}

} // namespace

std::vector<HoverCase> HoverCases()
{
    return {
        { L"TolvaCommand", L"TolvaKit.TolvaCommand", [](AtlControl& c) { c.Put(L"Caption", Text(L"&Open file")); },
            Own },
        // A link: hover colours, an access key and the pointer glyph after the caption.
        { L"TolvaLabel, link with glyph", L"TolvaKit.TolvaLabel",
            [](AtlControl& c) {
                c.Put(L"Caption", Text(L"&Next page"));
                c.Put(L"ArrowIcon", Long(5)); // tkPointerRight
                c.Put(L"ArrowPosition", Long(2)); // tkRight
                c.Put(L"ForeColorActive", Long(0xFF0000));
            },
            Own },
        // The bar itself repaints nothing on a move: the pointer goes over its up arrow.
        { L"TolvaScroll, over its up arrow", L"TolvaKit.TolvaScroll", [](AtlControl&) {},
            [](const AtlControl& c) {
                return ChildWindowFromPoint(c.Window(), POINT { 4, 4 });
            } },
        // The tab strip has no hover look: a move is only passed on.
        { L"TolvaTabs, three tabs", L"TolvaKit.TolvaTabs",
            [](AtlControl& c) {
                for (const wchar_t* caption : { L"&General", L"&Accounts", L"&Reports" })
                    c.Call(L"AddItem", Text(caption));
                c.Put(L"SelectedItem", Long(1));
            },
            Own },
    };
}

} // namespace tolva::bench
