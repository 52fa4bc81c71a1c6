#include "platform/win32/window/edit_text_box.h"
#include "platform/win32/com/com_ptr.h"
#include "core/twips_canvas.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/module.h"
#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/window/input_state.h"
#include "platform/win32/window/window_surface.h"
#include <algorithm>
#include <cmath>
#include <olectl.h>
#include <windowsx.h>

namespace tolva::win32 {

namespace {

int32_t ToPixels(float twips)
{
    return int32_t(std::lround(twips / float(SurfaceProperties::TwipsPerPixel)));
}

COLORREF ToRgb(OleColor color)
{
    return IsSystemColor(color) ? GetSysColor(SystemColorIndex(color)) : COLORREF(color & 0xFFFFFF);
}

String WindowText(HWND window)
{
    const int length = GetWindowTextLengthW(window);
    std::wstring text(size_t(std::max(length, 0)) + 1, L'\0');
    text.resize(size_t(std::max(GetWindowTextW(window, text.data(), length + 1), 0)));
    return FromWide(text);
}

} // namespace

EditTextBox::EditTextBox(WindowSurface& owner)
    : m_owner(&owner)
{
    owner.AttachTextBox(this);
}

EditTextBox::~EditTextBox()
{
    m_lifetime.reset();
    if (m_owner)
        m_owner->DetachTextBox(this);
    if (m_window) {
        HWND window = m_window;
        Forget();
        ::DestroyWindow(window);
    }
}

void EditTextBox::CreateWindowIn(HWND parent)
{
    DWORD style = WS_CHILD | WS_VISIBLE | ES_LEFT | ES_AUTOHSCROLL;
    if (Locked())
        style |= ES_READONLY;
    if (!Enabled())
        style |= WS_DISABLED;
    HWND window = CreateWindowExW(0, L"EDIT", L"", style, ToPixels(Left()), ToPixels(Top()), ToPixels(Width()),
        ToPixels(Height()), parent, nullptr, Module::Handle(), nullptr);
    if (!window)
        return;
    m_window = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_editProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&EditTextBox::SubclassProc)));
    SetFont(GetFont());
    SetMaxLength(MaxLength());
    const int32_t start = TextBoxModel::SelStart();
    const int32_t length = TextBoxModel::SelLength();
    m_shown = Text();
    SetWindowTextW(window, WidePointer(m_shown));
    CallEdit(EM_SETSEL, WPARAM(start), LPARAM(start + length));
}

void EditTextBox::Forget()
{
    if (m_window && m_editProc)
        SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_editProc));
    if (m_window)
        SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    m_window = nullptr;
    m_editProc = nullptr;
}

LRESULT EditTextBox::CallEdit(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(m_editProc, m_window, message, wParam, lParam);
}

void EditTextBox::Move(float left, float top, float width, float height)
{
    TextBoxModel::Move(left, top, width, height);
    if (m_window)
        SetWindowPos(m_window, nullptr, ToPixels(Left()), ToPixels(Top()), ToPixels(Width()), ToPixels(Height()),
            SWP_NOZORDER | SWP_NOACTIVATE);
}

// The window holds the selection the user made; the model takes it before code changes it.
void EditTextBox::PullSelection()
{
    if (!m_window)
        return;
    DWORD start = 0, end = 0;
    CallEdit(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    Restore(Text(), int32_t(start), int32_t(end) - int32_t(start));
}

// What code changed in the model goes to the window: a new text, and then the selection.
void EditTextBox::LookChanged()
{
    if (!m_window)
        return;
    if (Text() != m_shown) {
        m_shown = Text();
        SetWindowTextW(m_window, WidePointer(m_shown));
    }
    const int32_t start = TextBoxModel::SelStart();
    CallEdit(EM_SETSEL, WPARAM(start), LPARAM(start + TextBoxModel::SelLength()));
    InvalidateRect(m_window, nullptr, TRUE);
}

void EditTextBox::SetText(StringView text)
{
    PullSelection();
    TextBoxModel::SetText(text);
    if (m_window)
        CallEdit(EM_EMPTYUNDOBUFFER, 0, 0);
}

int32_t EditTextBox::SelStart() const
{
    if (!m_window)
        return TextBoxModel::SelStart();
    DWORD start = 0;
    CallWindowProcW(m_editProc, m_window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    return int32_t(start);
}

void EditTextBox::SetSelStart(int32_t start)
{
    PullSelection();
    TextBoxModel::SetSelStart(start);
}

int32_t EditTextBox::SelLength() const
{
    if (!m_window)
        return TextBoxModel::SelLength();
    DWORD start = 0, end = 0;
    CallWindowProcW(m_editProc, m_window, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    return int32_t(end) - int32_t(start);
}

void EditTextBox::SetSelLength(int32_t length)
{
    PullSelection();
    TextBoxModel::SetSelLength(length);
}

String EditTextBox::SelText() const
{
    return Text().substr(size_t(SelStart()), size_t(SelLength()));
}

void EditTextBox::SetSelText(StringView text)
{
    PullSelection();
    TextBoxModel::SetSelText(text);
}

void EditTextBox::SetLocked(bool locked)
{
    TextBoxModel::SetLocked(locked);
    if (m_window)
        CallEdit(EM_SETREADONLY, locked, 0);
}

// 0 is the system's largest limit.
void EditTextBox::SetMaxLength(int32_t length)
{
    TextBoxModel::SetMaxLength(length);
    if (m_window)
        CallEdit(EM_SETLIMITTEXT, WPARAM(MaxLength()), 0);
}

void EditTextBox::SetEnabled(bool enabled)
{
    TextBoxModel::SetEnabled(enabled);
    if (m_window)
        EnableWindow(m_window, enabled);
}

void EditTextBox::SetBackColor(OleColor color)
{
    m_background = GdiObject<HBRUSH>();
    TextBoxModel::SetBackColor(color);
}

// The window switches to the new font before the old one is deleted.
void EditTextBox::SetFont(const Font& font)
{
    TextBoxModel::SetFont(font);
    if (!m_window)
        return;
    GdiObject<HFONT> created = CreateCanvasFont(ToCanvasFont(font));
    CallEdit(WM_SETFONT, reinterpret_cast<WPARAM>(created.Get()), TRUE);
    m_font = std::move(created);
}

bool EditTextBox::HasFocus() const
{
    return m_window && GetFocus() == m_window;
}

void EditTextBox::SetFocus()
{
    if (m_window)
        ::SetFocus(m_window);
}

void EditTextBox::TakeTypedText()
{
    String text = WindowText(m_window);
    if (text == Text())
        return;
    m_shown = text;
    DWORD start = 0, end = 0;
    CallEdit(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    Restore(std::move(text), int32_t(start), int32_t(end) - int32_t(start));
    if (TextBoxListener* listener = Listener())
        listener->OnChange();
}

LRESULT EditTextBox::OnColor(HDC dc)
{
    if (!m_background)
        m_background = GdiObject<HBRUSH>(CreateSolidBrush(ToRgb(BackColor())));
    SetTextColor(dc, Enabled() ? ToRgb(ForeColor()) : GetSysColor(COLOR_GRAYTEXT));
    SetBkColor(dc, ToRgb(BackColor()));
    return reinterpret_cast<LRESULT>(m_background.Get());
}

LRESULT CALLBACK EditTextBox::SubclassProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* box = reinterpret_cast<EditTextBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!box)
        return DefWindowProcW(window, message, wParam, lParam);
    // An event raised from here may release the control's object.
    const ComPtr<IUnknown> keepAlive(box->m_owner ? box->m_owner->KeepAlive() : nullptr);
    try {
        return box->HandleMessage(message, wParam, lParam);
    } catch (...) {
        // Nothing above a window procedure could take the error: the key or click is dropped.
        return 0;
    }
}

LRESULT EditTextBox::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
        return OnKey(message, wParam, lParam);
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
        return OnMouse(message, wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        const std::weak_ptr<int> alive = m_lifetime;
        const LRESULT result = CallEdit(message, wParam, lParam);
        if (m_owner)
            m_owner->FocusMovedInside(message == WM_SETFOCUS, reinterpret_cast<HWND>(wParam));
        if (message == WM_SETFOCUS && !alive.expired())
            if (TextBoxListener* listener = Listener())
                listener->OnGotFocus();
        return result;
    }
    case OCM_COMMAND:
        if (HIWORD(wParam) == EN_CHANGE)
            TakeTypedText();
        return 0;
    case OCM_CTLCOLOREDIT:
    case OCM_CTLCOLORSTATIC:
        return OnColor(reinterpret_cast<HDC>(wParam));
    case WM_DESTROY:
        // The model keeps what the window held.
        PullSelection();
        return CallEdit(message, wParam, lParam);
    case WM_NCDESTROY: {
        WNDPROC editProc = m_editProc;
        HWND window = m_window;
        Forget();
        return CallWindowProcW(editProc, window, message, wParam, lParam);
    }
    default:
        return CallEdit(message, wParam, lParam);
    }
}

// The owner's handlers see the key first; what they leave is what the box gets.
LRESULT EditTextBox::OnKey(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::weak_ptr<int> alive = m_lifetime;
    const WNDPROC editProc = m_editProc;
    const HWND window = m_window;
    int16_t key = int16_t(wParam);
    if (TextBoxListener* listener = Listener()) {
        int16_t shift = InputState::ShiftKeys();
        if (message == WM_KEYDOWN)
            listener->OnKeyDown(key, shift);
        else if (message == WM_KEYUP)
            listener->OnKeyUp(key, shift);
        else
            listener->OnKeyPress(key);
    }
    if (alive.expired() || !IsWindow(window) || key == 0)
        return 0;
    return CallWindowProcW(editProc, window, message, WPARAM(uint16_t(key)), lParam);
}

// The box acts on the mouse first (focus, caret), then the owner hears it; a left release is
// also a Click.
LRESULT EditTextBox::OnMouse(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::weak_ptr<int> alive = m_lifetime;
    const LRESULT result = CallEdit(message, wParam, lParam);
    TextBoxListener* listener = alive.expired() ? nullptr : Listener();
    if (!listener)
        return result;
    const float x = InputState::PixelsToTwips(GET_X_LPARAM(lParam));
    const float y = InputState::PixelsToTwips(GET_Y_LPARAM(lParam));
    const int16_t shift = InputState::ShiftKeys();
    const int16_t button = InputState::ButtonOf(message);
    switch (message) {
    case WM_MOUSEMOVE:
        listener->OnMouseMove(InputState::ButtonsHeld(wParam), shift, x, y);
        break;
    case WM_LBUTTONDBLCLK:
        listener->OnDblClick();
        break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
        listener->OnMouseUp(button, shift, x, y);
        if (button == InputState::LeftButton && !alive.expired())
            listener->OnClick();
        break;
    default:
        listener->OnMouseDown(button, shift, x, y);
        break;
    }
    return result;
}

} // namespace tolva::win32
