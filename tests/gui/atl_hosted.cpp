#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/dispatch_helpers.h"

namespace tolva::win32::test {

void AtlHosted::Host(const wchar_t* progId, const IID& events, int x, int y, int width, int height)
{
    HMODULE atl = LoadLibraryW(L"atl.dll");
    ASSERT_TRUE(atl);
    auto init = reinterpret_cast<BOOL(WINAPI*)()>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxWinInit")));
    auto getControl = reinterpret_cast<HRESULT(WINAPI*)(HWND, IUnknown**)>(
        reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxGetControl")));
    ASSERT_TRUE(init && getControl);
    init();
    container = CreateWindowExW(0, L"AtlAxWin", progId, WS_CHILD | WS_VISIBLE, x, y, width, height, form.Get(), nullptr,
        GetModuleHandleW(nullptr), nullptr);
    ASSERT_TRUE(container);
    ASSERT_EQ(getControl(container, control.Put()), S_OK);
    dispatch = control.As<IDispatch>(IID_IDispatch);
    ASSERT_TRUE(dispatch);
    sink = ComPtr<EventSink>::Adopt(new EventSink(events));
    ASSERT_NE(Advise(control.Get(), events, sink.Get()), 0u);
    window = GetWindow(container, GW_CHILD);
    ASSERT_TRUE(window);
    UpdateWindow(window);
}

void AtlHosted::TearDown()
{
    if (container)
        DestroyWindow(container);
}

LONG AtlHosted::Read(const wchar_t* name)
{
    OleVariant value;
    Get(dispatch.Get(), name, value);
    return AsLong(value);
}

size_t AtlHosted::Count(DISPID id) const
{
    size_t n = 0;
    for (DISPID raised : sink->Ids())
        n += raised == id;
    return n;
}

std::vector<DISPID> AtlHosted::IdsWithout(DISPID id) const
{
    std::vector<DISPID> ids;
    for (DISPID raised : sink->Ids())
        if (raised != id)
            ids.push_back(raised);
    return ids;
}

} // namespace tolva::win32::test
