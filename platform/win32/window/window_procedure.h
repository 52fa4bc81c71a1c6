#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// The window procedure of a class whose windows each belong to one Owner object, passed as
// CreateWindowEx's parameter and kept in the window's user data. Owner provides
//     void Attach(HWND)     the window exists (WM_NCCREATE, its first message)
//     void Detach()         the window goes (WM_NCDESTROY, its last message)
//     LRESULT HandleMessage(HWND, UINT, WPARAM, LPARAM)   every message in between
// and may provide IUnknown* KeepAlive(): the COM object held while a message is handled, since a
// handler may raise an event whose sink releases it. An exception stops here (nothing above a
// window procedure could take it) and the message gets the default answer.
template <class Owner> LRESULT CALLBACK OwnedWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* created = static_cast<Owner*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
        created->Attach(window);
    }
    auto* owner = reinterpret_cast<Owner*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!owner)
        return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        owner->Detach();
        return DefWindowProcW(window, message, wParam, lParam);
    }
    ComPtr<IUnknown> keepAlive;
    if constexpr (requires { owner->KeepAlive(); })
        keepAlive = ComPtr<IUnknown>(owner->KeepAlive());
    try {
        return owner->HandleMessage(window, message, wParam, lParam);
    } catch (...) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

} // namespace tolva::win32
