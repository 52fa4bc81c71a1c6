#include "platform/win32/window/window_surface.h"
#include "platform/win32/com/module.h"
#include "platform/win32/gdi/gdi_canvas.h"
#include "platform/win32/gdi/gdi_object.h"
#include "platform/win32/gdi/window_dc.h"
#include "platform/win32/window/edit_text_box.h"
#include "platform/win32/window/input_state.h"
#include "platform/win32/window/window_class.h"
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

float ToTwips(LONG pixels)
{
    return float(pixels) * float(SurfaceProperties::TwipsPerPixel);
}

void FillWithColor(HDC dc, const RECT& rect, OleColor color)
{
    const COLORREF rgb = IsSystemColor(color) ? GetSysColor(SystemColorIndex(color)) : COLORREF(color & 0xFFFFFF);
    GdiObject<HBRUSH> brush(CreateSolidBrush(rgb));
    FillRect(dc, &rect, brush.Get());
}

// The one-pixel black frame of a flat border around rect.
void DrawFlatFrame(HDC dc, const RECT& rect)
{
    FrameRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

} // namespace

const wchar_t* WindowSurface::ClassName()
{
    static const WindowClass windowClass(L"TolvaKitSurface", &OwnedWindowProcedure<WindowSurface>, CS_DBLCLKS);
    return windowClass.Name();
}

WindowSurface::WindowSurface(IUnknown* keepAlive)
    : WindowlessSurface(keepAlive)
    , m_keepAlive(keepAlive)
{ }

WindowSurface::WindowSurface(WindowSurface* parent)
    : WindowlessSurface(parent->m_keepAlive)
    , m_keepAlive(parent->m_keepAlive)
    , m_parent(parent)
    , m_canGetFocus(false)
{
    m_parent->m_children.push_back(this);
    if (m_parent->m_window)
        CreateOwnWindow(m_parent->m_window);
}

WindowSurface::~WindowSurface()
{
    if (m_accessibleLink)
        *m_accessibleLink = {};
    DropKeepAlive();
    for (WindowSurface* child : m_children)
        child->m_parent = nullptr;
    for (EditTextBox* box : m_textBoxes)
        box->OwnerGone();
    if (m_parent)
        std::erase(m_parent->m_children, this);
    DestroyWindow();
}

void WindowSurface::SetAccessible(AccessibleElement* element)
{
    WindowlessSurface::SetAccessible(element);
    if (m_accessibleLink)
        m_accessibleLink->element = element;
}

void WindowSurface::Announce(AccessibleEvent event, int32_t item)
{
    if (m_window && Accessible())
        NotifyAccessibleEvent(m_window, event, item);
}

void WindowSurface::DropKeepAlive()
{
    m_keepAlive = nullptr;
    for (WindowSurface* child : m_children)
        child->DropKeepAlive();
}

void WindowSurface::CreateWindowIn(HWND parent, const RECT& rect)
{
    const float oldWidth = Width(), oldHeight = Height();
    DestroyWindow();
    SurfaceProperties::Move(
        ToTwips(rect.left), ToTwips(rect.top), ToTwips(rect.right - rect.left), ToTwips(rect.bottom - rect.top));
    CreateOwnWindow(parent);
    if (SurfaceListener* listener = Listener(); listener && (Width() != oldWidth || Height() != oldHeight))
        listener->OnResize();
}

void WindowSurface::CreateOwnWindow(HWND parent)
{
    DWORD style = (m_popup ? WS_POPUP : WS_CHILD | WS_CLIPSIBLINGS) | WS_CLIPCHILDREN;
    if (Visible())
        style |= WS_VISIBLE;
    if (!Enabled())
        style |= WS_DISABLED;
    if (m_canGetFocus)
        style |= WS_TABSTOP;
    style |= BorderStyleBits();
    const RECT rect = PixelRect();
    CreateWindowExW(BorderExStyleBits() | (m_popup ? WS_EX_TOOLWINDOW : 0), ClassName(), L"", style, rect.left, rect.top, rect.right - rect.left,
        rect.bottom - rect.top, parent, nullptr, Module::Handle(), this);
    if (!m_window)
        return;
    for (WindowSurface* child : m_children)
        child->CreateOwnWindow(m_window);
    for (EditTextBox* box : m_textBoxes)
        box->CreateWindowIn(m_window);
}

void WindowSurface::AttachTextBox(EditTextBox* box)
{
    m_textBoxes.push_back(box);
    if (m_window)
        box->CreateWindowIn(m_window);
}

void WindowSurface::DetachTextBox(EditTextBox* box)
{
    std::erase(m_textBoxes, box);
}

std::unique_ptr<TextBox> WindowSurface::CreateTextBox()
{
    return std::make_unique<EditTextBox>(*this);
}

WindowSurface& WindowSurface::Root()
{
    WindowSurface* root = this;
    while (root->m_parent)
        root = root->m_parent;
    return *root;
}

bool WindowSurface::Inside(HWND window)
{
    HWND own = Root().m_window;
    return own && window && (window == own || IsChild(own, window));
}

void WindowSurface::FocusMovedInside(bool gotFocus, HWND other)
{
    WindowSurface& root = Root();
    if (!Inside(other) && root.m_owner)
        root.m_owner->OnSurfaceFocus(gotFocus);
}

// A 3D border is the system's sunken client edge. A flat one is the system's thin border, one
// pixel that the window paints black itself (WM_NCPAINT): the system's frame colour need not be
// black.
DWORD WindowSurface::BorderStyleBits() const
{
    return BorderStyle() == 1 && Appearance() == SurfaceAppearance::Flat ? WS_BORDER : 0;
}

DWORD WindowSurface::BorderExStyleBits() const
{
    return BorderStyle() == 1 && Appearance() != SurfaceAppearance::Flat ? WS_EX_CLIENTEDGE : 0;
}

void WindowSurface::ApplyBorder()
{
    if (!m_window)
        return;
    const LONG_PTR style = GetWindowLongPtrW(m_window, GWL_STYLE) & ~LONG_PTR(WS_BORDER);
    const LONG_PTR exStyle = GetWindowLongPtrW(m_window, GWL_EXSTYLE) & ~LONG_PTR(WS_EX_CLIENTEDGE);
    SetWindowLongPtrW(m_window, GWL_STYLE, style | LONG_PTR(BorderStyleBits()));
    SetWindowLongPtrW(m_window, GWL_EXSTYLE, exStyle | LONG_PTR(BorderExStyleBits()));
    SetWindowPos(
        m_window, nullptr, 0, 0, 0, 0, SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowSurface::DestroyWindow()
{
    // The children's windows go with it; each is told by its WM_NCDESTROY.
    if (m_window)
        ::DestroyWindow(m_window);
}

void WindowSurface::Detach()
{
    m_window = nullptr;
    m_buttonsDown = 0;
    m_focused = false;
    m_captured = false;
}

RECT WindowSurface::PixelRect() const
{
    const int32_t left = ToPixels(Left());
    const int32_t top = ToPixels(Top());
    return { left, top, left + ToPixels(Width()), top + ToPixels(Height()) };
}

void WindowSurface::SetFocus()
{
    if (m_window)
        ::SetFocus(m_window);
}

bool WindowSurface::HasAccessKey(char16_t key) const
{
    const String keys = AccessKeys();
    return std::any_of(keys.begin(), keys.end(), [key](char16_t k) { return UpperCase(k) == UpperCase(key); });
}

bool WindowSurface::AcceptsInput() const
{
    for (const WindowSurface* surface = this; surface; surface = surface->m_parent)
        if (!surface->Enabled())
            return false;
    return true;
}

void WindowSurface::PressAccessKey(char16_t key)
{
    if (SurfaceListener* listener = Listener(); listener && AcceptsInput() && HasAccessKey(key))
        listener->OnAccessKeyPress(key);
}

void WindowSurface::DrawTo(HDC dc, const RECT& bounds)
{
    const int32_t width = ToPixels(Width());
    const int32_t height = ToPixels(Height());
    if (width <= 0 || height <= 0)
        return;
    GdiCanvas image(nullptr, width, height);
    FillWithColor(image.Dc(), RECT { 0, 0, width, height }, BackColor());
    const std::weak_ptr<int> alive = m_lifetime;
    {
        Redirection toImage(*this, image.Dc(), true, BorderPixels(), BorderPixels());
        PaintTree();
    }
    if (!alive.expired())
        image.StretchTo(dc, bounds);
}

WindowSurface::Redirection::Redirection(WindowSurface& surface, HDC dc, bool tree, int32_t x, int32_t y)
    : m_surface(surface)
    , m_alive(surface.m_lifetime)
    , m_tree(tree)
{
    if (tree)
        surface.RedirectTree(dc, x, y);
    else
        surface.m_target = Target { dc, x, y };
}

WindowSurface::Redirection::~Redirection()
{
    if (m_alive.expired())
        return;
    if (m_tree)
        m_surface.EndRedirectTree();
    else
        m_surface.m_target = Target {};
}

void WindowSurface::RedirectTree(HDC dc, int32_t x, int32_t y)
{
    m_target = Target { dc, x, y };
    for (WindowSurface* child : m_children) {
        if (!child->Visible())
            continue;
        const RECT rect = child->PixelRect();
        child->RedirectTree(dc, x + rect.left + child->BorderPixels(), y + rect.top + child->BorderPixels());
    }
}

void WindowSurface::PaintTree()
{
    if (BorderStyle() == 1) {
        const int32_t border = BorderPixels();
        RECT edge { m_target.x - border, m_target.y - border, m_target.x - border + ToPixels(Width()),
            m_target.y - border + ToPixels(Height()) };
        if (Appearance() == SurfaceAppearance::Flat)
            DrawFlatFrame(m_target.dc, edge);
        else
            DrawEdge(m_target.dc, &edge, EDGE_SUNKEN, BF_RECT);
    }
    if (SurfaceListener* listener = Listener())
        listener->OnPaint();
    PrintTextBoxes();
    for (WindowSurface* child : m_children)
        if (child->Visible())
            child->PaintTree();
}

// The text boxes' windows draw themselves into the container's device context.
void WindowSurface::PrintTextBoxes()
{
    for (EditTextBox* box : m_textBoxes) {
        if (!box->Window())
            continue;
        POINT origin {};
        SetViewportOrgEx(m_target.dc, m_target.x + ToPixels(box->Left()), m_target.y + ToPixels(box->Top()), &origin);
        SendMessageW(box->Window(), WM_PRINT, reinterpret_cast<WPARAM>(m_target.dc), PRF_CLIENT | PRF_ERASEBKGND);
        SetViewportOrgEx(m_target.dc, origin.x, origin.y, nullptr);
    }
}

void WindowSurface::EndRedirectTree()
{
    m_target = Target {};
    for (WindowSurface* child : m_children)
        child->EndRedirectTree();
}

void WindowSurface::Move(float left, float top, float width, float height)
{
    const float oldWidth = Width(), oldHeight = Height();
    SurfaceProperties::Move(left, top, width, height);
    if (m_window) {
        const RECT rect = PixelRect();
        m_moving = true;
        SetWindowPos(m_window, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
            SWP_NOZORDER | SWP_NOACTIVATE);
        m_moving = false;
    }
    if (SurfaceListener* listener = Listener(); listener && (Width() != oldWidth || Height() != oldHeight))
        listener->OnResize();
}

void WindowSurface::SetEnabled(bool enabled)
{
    SurfaceProperties::SetEnabled(enabled);
    if (m_window)
        EnableWindow(m_window, enabled);
}

void WindowSurface::SetBorderStyle(int16_t style)
{
    SurfaceProperties::SetBorderStyle(style);
    ApplyBorder();
}

void WindowSurface::SetAppearance(int16_t appearance)
{
    SurfaceProperties::SetAppearance(appearance);
    ApplyBorder();
}

void WindowSurface::SetVisible(bool visible)
{
    if (visible == Visible())
        return;
    SurfaceProperties::SetVisible(visible);
    if (m_popup)
        ShowPopup(visible);
    else if (m_window)
        ShowWindow(m_window, visible ? SW_SHOWNA : SW_HIDE);
}

void WindowSurface::SetAccessKeys(StringView keys)
{
    if (keys == AccessKeys())
        return;
    SurfaceProperties::SetAccessKeys(keys);
    if (m_owner)
        m_owner->OnAccessKeysChanged();
}

// Followed from the focus messages rather than asked of the system on every paint.
bool WindowSurface::HasFocus() const
{
    return m_focused;
}

// Taking the capture again while holding it changes nothing: the system is asked only when the
// window does not hold it (as far as WM_CAPTURECHANGED tells).
void WindowSurface::SetCapture()
{
    if (m_window && !m_captured) {
        ::SetCapture(m_window);
        m_captured = GetCapture() == m_window;
    }
}

// While a button pressed on the window is held the capture stays, so that the release reaches
// the control wherever the pointer is: a press dragged off a button still clicks it.
void WindowSurface::ReleaseCapture()
{
    if (!m_buttonsDown)
        ::ReleaseCapture();
}

PixelPoint WindowSurface::ScreenOrigin() const
{
    if (m_window) {
        POINT origin { 0, 0 };
        ClientToScreen(m_window, &origin);
        return { origin.x, origin.y };
    }
    if (!m_parent)
        return {};
    const PixelPoint parentOrigin = m_parent->ScreenOrigin();
    const RECT rect = PixelRect();
    return { parentOrigin.x + rect.left + BorderPixels(), parentOrigin.y + rect.top + BorderPixels() };
}

void WindowSurface::Refresh()
{
    if (m_window) {
        InvalidateRect(m_window, nullptr, FALSE);
        UpdateWindow(m_window);
        return;
    }
    WindowSurface* root = this;
    while (root->m_parent)
        root = root->m_parent;
    if (root->m_owner)
        root->m_owner->OnViewChanged();
}

// An image for the screen: no device context of the window is needed to make it.
std::unique_ptr<Canvas> WindowSurface::CreateCanvas(int32_t width, int32_t height)
{
    return std::make_unique<GdiCanvas>(nullptr, width, height);
}

void WindowSurface::Present(const Canvas& image, int32_t x, int32_t y, int32_t width, int32_t height)
{
    // CreateCanvas makes nothing else on this platform.
    const auto* canvas = dynamic_cast<const GdiCanvas*>(&image);
    if (!canvas)
        return;
    if (m_target.dc) {
        canvas->CopyTo(m_target.dc, m_target.x + x, m_target.y + y, width, height);
    } else if (m_window) {
        WindowDc dc(m_window);
        canvas->CopyTo(dc.Get(), x, y, width, height);
    } else {
        Refresh(); // windowless: the container draws it again
    }
}

std::unique_ptr<Surface> WindowSurface::CreateChild()
{
    return std::unique_ptr<Surface>(new WindowSurface(this));
}

void WindowSurface::Attach(HWND window)
{
    m_window = window;
}

LRESULT WindowSurface::HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool input = (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) || message == WM_KEYDOWN
        || message == WM_KEYUP || message == WM_CHAR;
    // Posted input reaches a disabled window too; a control must not hear it.
    if (input && !AcceptsInput())
        return 0;
    switch (message) {
    case WM_PAINT:
        OnPaintMessage(window);
        return 0;
    case WM_NCPAINT:
        if (!BorderStyleBits())
            return DefWindowProcW(window, message, wParam, lParam);
        OnNcPaintMessage(window);
        return 0;
    case WM_ERASEBKGND:
        // A control paints every pixel itself; erasing first would only flicker.
        if (!Listener()) {
            RECT client;
            GetClientRect(window, &client);
            FillWithColor(reinterpret_cast<HDC>(wParam), client, BackColor());
        }
        return 1;
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_MBUTTONDBLCLK:
        OnMouseMessage(window, message, wParam, lParam);
        return 0;
    case WM_CAPTURECHANGED:
        // A modal loop took the mouse: the buttons' releases will not come here.
        if (reinterpret_cast<HWND>(lParam) != window) {
            m_buttonsDown = 0;
            m_captured = false;
        }
        return 0;
    case WM_KEYDOWN:
    case WM_KEYUP: {
        int16_t keyCode = int16_t(wParam);
        int16_t shift = InputState::ShiftKeys();
        if (SurfaceListener* listener = Listener())
            message == WM_KEYDOWN ? listener->OnKeyDown(keyCode, shift) : listener->OnKeyUp(keyCode, shift);
        return 0;
    }
    case WM_CHAR: {
        int16_t keyAscii = int16_t(wParam);
        if (SurfaceListener* listener = Listener())
            listener->OnKeyPress(keyAscii);
        return 0;
    }
    case WM_GETDLGCODE: {
        // Enter and Space belong to the control, not to the dialog's default button.
        const auto* pending = reinterpret_cast<const MSG*>(lParam);
        LRESULT code = m_dialogCodes;
        if (m_keepsEnter && pending && pending->message == WM_KEYDOWN && pending->wParam == VK_RETURN)
            code |= DLGC_WANTMESSAGE;
        return code;
    }
    case WM_SETFOCUS: {
        m_focused = true;
        const std::weak_ptr<int> alive = m_lifetime;
        if (m_owner && !Inside(reinterpret_cast<HWND>(wParam)))
            m_owner->OnSurfaceFocus(true);
        if (SurfaceListener* listener = alive.expired() ? nullptr : Listener())
            listener->OnGotFocus();
        return 0;
    }
    case WM_KILLFOCUS: {
        m_focused = false;
        const std::weak_ptr<int> alive = m_lifetime;
        if (SurfaceListener* listener = Listener())
            listener->OnLostFocus();
        if (!alive.expired() && m_owner && !Inside(reinterpret_cast<HWND>(wParam)))
            m_owner->OnSurfaceFocus(false);
        return 0;
    }
    case WM_GETOBJECT:
        if (LONG(lParam) == OBJID_CLIENT && Accessible()) {
            if (!m_accessibleLink)
                m_accessibleLink = std::make_shared<AccessibleLink>(AccessibleLink { this, Accessible() });
            if (const LRESULT answer = AccessibleObject::Answer(m_accessibleLink, wParam))
                return answer;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    case WM_SIZE:
        OnSizeMessage(window);
        return 0;
    case WM_ACTIVATE:
        if (m_popup)
            return OnActivateMessage(window, wParam, lParam);
        return DefWindowProcW(window, message, wParam, lParam);
    case WM_SHOWWINDOW:
        if (SurfaceListener* listener = Listener(); listener && !wParam)
            listener->OnHide();
        return DefWindowProcW(window, message, wParam, lParam);
    case WM_COMMAND:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        // A text box's notifications go back to it.
        if (HWND child = reinterpret_cast<HWND>(lParam); child && GetParent(child) == window)
            return SendMessageW(child, OCM__BASE + message, wParam, lParam);
        return DefWindowProcW(window, message, wParam, lParam);
    default:
        return DefWindowProcW(window, message, wParam, lParam);
    }
}

void WindowSurface::OnPaintMessage(HWND window)
{
    PaintDc dc(window);
    if (SurfaceListener* listener = Listener()) {
        Redirection toPaint(*this, dc.Get(), false);
        listener->OnPaint();
    } else {
        RECT client;
        GetClientRect(window, &client);
        FillWithColor(dc.Get(), client, BackColor());
    }
}

void WindowSurface::OnNcPaintMessage(HWND window)
{
    RECT frame;
    GetWindowRect(window, &frame);
    OffsetRect(&frame, -frame.left, -frame.top);
    if (WholeWindowDc dc(window); dc.Get())
        DrawFlatFrame(dc.Get(), frame);
}

void WindowSurface::OnMouseMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const float x = InputState::PixelsToTwips(GET_X_LPARAM(lParam));
    const float y = InputState::PixelsToTwips(GET_Y_LPARAM(lParam));
    const int16_t shift = InputState::ShiftKeys(wParam);
    const int16_t button = InputState::ButtonOf(message);
    const std::weak_ptr<int> alive = m_lifetime;

    switch (message) {
    case WM_MOUSEMOVE:
        if (SurfaceListener* listener = Listener())
            listener->OnMouseMove(InputState::ButtonsHeld(wParam), shift, x, y);
        return;
    case WM_LBUTTONDBLCLK:
        m_buttonsDown |= button;
        ::SetCapture(window);
        if (SurfaceListener* listener = Listener())
            listener->OnDblClick();
        return;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
        m_buttonsDown &= int16_t(~button);
        if (SurfaceListener* listener = Listener())
            listener->OnMouseUp(button, shift, x, y);
        if (alive.expired())
            return;
        if (!m_buttonsDown && GetCapture() == window)
            ::ReleaseCapture();
        // A left release over the window, after its MouseUp, is the window's click.
        if (SurfaceListener* listener = Listener(); listener && button == InputState::LeftButton) {
            RECT client;
            GetClientRect(window, &client);
            if (PtInRect(&client, POINT { GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam) }))
                listener->OnClick();
        }
        return;
    default: // a press; a right or middle double click counts as one
        m_buttonsDown |= button;
        ::SetCapture(window);
        if (button == InputState::LeftButton && m_canGetFocus && !Inside(GetFocus())) {
            ::SetFocus(window);
            if (alive.expired())
                return;
        }
        if (SurfaceListener* listener = Listener())
            listener->OnMouseDown(button, shift, x, y);
        return;
    }
}

void WindowSurface::OnSizeMessage(HWND window)
{
    if (m_moving)
        return;
    // Someone else resized the window: take its size as the surface's.
    RECT frame;
    GetWindowRect(window, &frame);
    const LONG width = frame.right - frame.left;
    const LONG height = frame.bottom - frame.top;
    if (width == ToPixels(Width()) && height == ToPixels(Height()))
        return;
    SurfaceProperties::Move(Left(), Top(), ToTwips(width), ToTwips(height));
    if (SurfaceListener* listener = Listener())
        listener->OnResize();
}

} // namespace tolva::win32
