// The top-level pop-up windows: owner, activation and the owner's caption.
#include "platform/win32/window/window_surface.h"
#include <optional>
#include <utility>

namespace tolva::win32 {

namespace {

// Where the mouse press went that takes the activation away, when a button is down: the
// cursor, which has not moved since the press.
std::optional<PixelPoint> ActivatingPress()
{
    for (int button : { VK_LBUTTON, VK_RBUTTON, VK_MBUTTON }) {
        if (GetKeyState(button) >= 0 && GetAsyncKeyState(button) >= 0)
            continue;
        POINT cursor;
        if (!GetCursorPos(&cursor))
            return std::nullopt;
        return PixelPoint { cursor.x, cursor.y };
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<WindowSurface> WindowSurface::CreatePopupWindow(IUnknown* keepAlive)
{
    std::unique_ptr<WindowSurface> popup(new WindowSurface(keepAlive));
    popup->m_popup = true;
    popup->m_canGetFocus = false;
    popup->SurfaceProperties::SetVisible(false);
    popup->CreateOwnWindow(nullptr);
    return popup;
}

// Shown, the window belongs to the form that is active now, so that it stays above it, and it
// takes the activation (and so the keyboard). The system destroys owned windows with their owner:
// a window gone with an earlier form is made again. Hidden while still active (closed by a key or
// a choice, not by a click elsewhere), it hands the activation and the focus back.
void WindowSurface::ShowPopup(bool visible)
{
    if (visible && !m_window)
        CreateOwnWindow(nullptr);
    if (!m_window)
        return;
    if (visible) {
        HWND active = GetActiveWindow();
        m_popupOwner = active && active != m_window ? GetAncestor(active, GA_ROOT) : nullptr;
        m_focusBefore = GetFocus();
        SetWindowLongPtrW(m_window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(m_popupOwner));
        SetWindowPos(m_window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        ShowWindow(m_window, SW_SHOW);
        return;
    }
    if (HWND capture = GetCapture(); capture && Inside(capture))
        ::ReleaseCapture();
    const bool wasActive = m_popupActive;
    m_popupActive = false;
    ShowWindow(m_window, SW_HIDE);
    if (wasActive && m_popupOwner && IsWindow(m_popupOwner)) {
        SetActiveWindow(m_popupOwner);
        if (m_focusBefore && IsWindow(m_focusBefore) && GetAncestor(m_focusBefore, GA_ROOT) == m_popupOwner)
            ::SetFocus(m_focusBefore);
    }
}

// The owner lost the activation to its own pop-up: its caption is drawn active again, as for the
// system's drop-downs, and drawn inactive when the activation leaves for a third window. The
// listener hears of the loss after the window's own bookkeeping.
LRESULT WindowSurface::OnActivateMessage(HWND window, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = DefWindowProcW(window, WM_ACTIVATE, wParam, lParam);
    HWND other = reinterpret_cast<HWND>(lParam);
    if (LOWORD(wParam) != WA_INACTIVE) {
        m_popupActive = true;
        if (m_popupOwner)
            SendMessageW(m_popupOwner, WM_NCACTIVATE, TRUE, 0);
        return result;
    }
    const bool wasActive = std::exchange(m_popupActive, false);
    if (m_popupOwner && other != m_popupOwner)
        SendMessageW(m_popupOwner, WM_NCACTIVATE, FALSE, 0);
    if (SurfaceListener* listener = Listener(); listener && wasActive)
        listener->OnDeactivate(ActivatingPress());
    return result;
}

} // namespace tolva::win32
