#pragma once
#include "platform/win32/access/accessible_object.h"
#include "platform/win32/window/alt_key_state.h"
#include "platform/win32/windowless/windowless_surface.h"
#include "platform/win32/windows_api.h"
#include "platform/win32/window/window_procedure.h"
#include <memory>
#include <objbase.h>
#include <vector>

namespace tolva::win32 {

class EditTextBox;
class GdiCanvas;

// A control's surface over a child window of our own class: a windowless surface that gains a
// window while its control is active in place. The surface exists before and after its window: a control is created,
// loaded and saved without a container, and its window comes and goes with in-place activation (CreateWindowIn /
// DestroyWindow). Without a window the properties still hold, drawing reaches only a container's Draw call (DrawTo),
// and the window services answer as an unfocused, uncaptured window at the screen origin.
//
// Children (CreateChild) get their windows inside their parent's, at their own geometry.
class WindowSurface final : public WindowlessSurface {
public:
    // What the control's COM object wants to hear from the window, to tell its container.
    class Owner {
    public:
        virtual void OnSurfaceFocus(bool /*gotFocus*/) { }
        virtual void OnAccessKeysChanged() { }
        // A windowless surface asked for a repaint: the container should draw it again.
        virtual void OnViewChanged() { }

    protected:
        ~Owner() = default;
    };

    // keepAlive: the COM object of the control, held while a window message is handled, since an
    // event raised from it may release the object (may be null).
    explicit WindowSurface(IUnknown* keepAlive = nullptr);
    ~WindowSurface() override;

    // A top-level pop-up window of the library (a drop-down of a text entry), made at once: borderless,
    // hidden, out of the task bar, placed on the screen by Move. Shown, it is owned by the active form
    // and becomes the active window, while the form's caption keeps looking active; its listener hears
    // OnDeactivate when another window becomes active. Hidden while active, it gives the activation and
    // the focus back to where they were. keepAlive is held while a message is handled, as for a control.
    static std::unique_ptr<WindowSurface> CreatePopupWindow(IUnknown* keepAlive);
    WindowSurface(const WindowSurface&) = delete;
    WindowSurface& operator=(const WindowSurface&) = delete;

    void SetOwner(Owner* owner) { m_owner = owner; }
    // Stops holding the COM object during messages, here and in the children: its last
    // reference is going, and the window's last messages must not revive it.
    void DropKeepAlive();
    IUnknown* KeepAlive() const { return m_keepAlive; }

    // Creates the window as a child of parent at rect (the parent's client pixels) and the
    // windows of the children; the surface's geometry becomes rect in twips.
    void CreateWindowIn(HWND parent, const RECT& rect);
    // Destroys the window and the children's; the surface stays usable without them.
    void DestroyWindow();
    HWND Window() const { return m_window; }

    // The window's client object answers WM_GETOBJECT with the element's IAccessible; without
    // an element the system's standard object answers. Events reach the system's hooks.
    void SetAccessible(AccessibleElement* element) override;
    void Announce(AccessibleEvent event, int32_t item) override;

    // Whether a click gives the window the keyboard focus (a button's does; an embedded part's
    // does not).
    void SetCanGetFocus(bool canGetFocus) { m_canGetFocus = canGetFocus; }
    // What the window answers WM_GETDLGCODE: the keys it keeps from the dialog manager, and
    // whether Enter is one of them (instead of going to the dialog's default button).
    void SetDialogCodes(UINT codes, bool keepsEnter)
    {
        m_dialogCodes = codes;
        m_keepsEnter = keepsEnter;
    }

    // The text boxes made by CreateTextBox get their windows with this one's.
    void AttachTextBox(EditTextBox* box);
    void DetachTextBox(EditTextBox* box);
    // The focus went to (or came from) a window inside this one: the container hears of it only
    // when it crossed the control's edge, other is where it went to or came from.
    void FocusMovedInside(bool gotFocus, HWND other);

    // Alt plus key: whether key is one of the access keys (letters in either case), and its press.
    bool HasAccessKey(char16_t key) const;
    void PressAccessKey(char16_t key);
    // Enabled here and in every ancestor.
    bool AcceptsInput() const;

    // Renders the control and its children, borders included, stretched over bounds of any
    // device context: a container's IViewObject::Draw. Works with or without a window.
    void DrawTo(HDC dc, const RECT& bounds);

    // Surface.
    void Move(float left, float top, float width, float height) override;
    void SetEnabled(bool enabled) override;
    void SetBorderStyle(int16_t style) override;
    void SetAppearance(int16_t appearance) override;
    void SetVisible(bool visible) override;
    void SetAccessKeys(StringView keys) override;
    bool HasFocus() const override;
    void SetFocus() override;
    void SetCapture() override;
    void ReleaseCapture() override;
    PixelPoint ScreenOrigin() const override;
    void Refresh() override;
    std::unique_ptr<Canvas> CreateCanvas(int32_t width, int32_t height) override;
    void Present(const Canvas& image, int32_t x, int32_t y, int32_t width, int32_t height) override;
    std::unique_ptr<Surface> CreateChild() override;
    std::unique_ptr<TextBox> CreateTextBox() override; // an EditTextBox

private:
    // Where Present copies to instead of the window: a container's device context (DrawTo) at
    // an offset, or the device context of WM_PAINT.
    struct Target {
        HDC dc = nullptr;
        int32_t x = 0;
        int32_t y = 0;
    };

    explicit WindowSurface(WindowSurface* parent);

    static const wchar_t* ClassName();
    // The window's life, through OwnedWindowProcedure.
    template <class Owner> friend LRESULT CALLBACK OwnedWindowProcedure(HWND, UINT, WPARAM, LPARAM);
    void Attach(HWND window);
    void Detach(); // the window is gone (destroyed by us or with its parent)
    LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnPaintMessage(HWND window);
    void OnNcPaintMessage(HWND window);
    void OnMouseMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void OnSizeMessage(HWND window);
    LRESULT OnActivateMessage(HWND window, WPARAM wParam, LPARAM lParam);
    void ShowPopup(bool visible);
    void CreateOwnWindow(HWND parent);
    // The window styles that give the window its border, and their application to the window.
    DWORD BorderStyleBits() const;
    DWORD BorderExStyleBits() const;
    void ApplyBorder();
    WindowSurface& Root();
    // window is the control's own window or one inside it.
    bool Inside(HWND window);
    void PrintTextBoxes();
    RECT PixelRect() const;
    // Painting goes to dc instead of the window while this lives, with the children (which have
    // windows of their own) at their offsets if tree; afterwards, also when a paint handler
    // throws, to the windows again, unless the surface went meanwhile.
    class Redirection {
    public:
        Redirection(WindowSurface& surface, HDC dc, bool tree, int32_t x = 0, int32_t y = 0);
        ~Redirection();
        Redirection(const Redirection&) = delete;
        Redirection& operator=(const Redirection&) = delete;

    private:
        WindowSurface& m_surface;
        std::weak_ptr<int> m_alive;
        bool m_tree;
    };
    void RedirectTree(HDC dc, int32_t x, int32_t y);
    void PaintTree();
    void EndRedirectTree();

    IUnknown* m_keepAlive = nullptr;
    std::shared_ptr<AccessibleLink> m_accessibleLink; // made at the first WM_GETOBJECT
    AltKeyState m_altKey; // followed while the surface lives, for its mouse events
    WindowSurface* m_parent = nullptr;
    std::vector<WindowSurface*> m_children;
    std::vector<EditTextBox*> m_textBoxes;
    Owner* m_owner = nullptr;
    HWND m_window = nullptr;
    Target m_target;
    bool m_canGetFocus = true;
    UINT m_dialogCodes = DLGC_WANTARROWS | DLGC_WANTCHARS;
    bool m_keepsEnter = true;
    bool m_moving = false;
    // A pop-up window: its owner form while it shows, where the focus was before, and whether it is the
    // active window (between its activation and deactivation messages).
    bool m_popup = false;
    HWND m_popupOwner = nullptr;
    HWND m_focusBefore = nullptr;
    bool m_popupActive = false;
    bool m_focused = false; // between WM_SETFOCUS and WM_KILLFOCUS
    bool m_captured = false; // from SetCapture until WM_CAPTURECHANGED
    int16_t m_buttonsDown = 0;
    // Expires when the surface is destroyed, so that a message handler can tell that a listener
    // destroyed it.
    std::shared_ptr<int> m_lifetime = std::make_shared<int>(0);
};

} // namespace tolva::win32
