#pragma once
#include "core/accessibility.h"
#include "core/surface_properties.h"
#include "platform/headless/raster_canvas.h"
#include "platform/headless/window_tree.h"
#include <utility>
#include <vector>

namespace tolva::headless {

// A control's window in memory. Surfaces form a tree (CreateChild); focus and capture are
// kept by the WindowTree. The window image holds what Present copied onto the client area,
// a new or resized window showing its back colour. Refresh paints synchronously: it records the
// request and calls the listener's OnPaint before returning.
//
// The input helpers deliver notifications as the platform would: a surface that is disabled, or
// whose parent is, gets no mouse or key input and no focus.
class HeadlessSurface final : public SurfaceProperties {
public:
    explicit HeadlessSurface(WindowTree& tree, HeadlessSurface* parent = nullptr);
    ~HeadlessSurface() override;
    HeadlessSurface(const HeadlessSurface&) = delete;
    HeadlessSurface& operator=(const HeadlessSurface&) = delete;

    // Surface.
    void SetListener(SurfaceListener* listener) override { m_listener = listener; }
    // Calls OnResize when the size changes.
    void Move(float left, float top, float width, float height) override;
    void SetBorderStyle(int16_t style) override;
    void SetAppearance(int16_t appearance) override;
    // A pop-up window becomes the active window when shown and gives it up when hidden.
    void SetVisible(bool visible) override;
    bool HasFocus() const override { return m_tree.Focus() == this; }
    // Takes the keyboard focus (LostFocus to the surface that had it, GotFocus here).
    void SetFocus() override;
    void SetCapture() override { m_tree.SetCapture(this); }
    void ReleaseCapture() override { m_tree.ReleaseCapture(); }
    PixelPoint ScreenOrigin() const override;
    PixelPoint ScreenSize() const override { return m_tree.ScreenSize(); }
    void Refresh() override;
    std::unique_ptr<Canvas> CreateCanvas(int32_t width, int32_t height) override;
    void Present(const Canvas& image, int32_t x, int32_t y, int32_t width, int32_t height) override;
    std::unique_ptr<Surface> CreateChild() override;
    std::unique_ptr<TextBox> CreateTextBox() override; // a HeadlessTextBox
    std::unique_ptr<Timer> CreateTimer() override;
    void Announce(AccessibleEvent event, int32_t item) override { m_announcements.push_back({ event, item }); }

    // Inspection.
    SurfaceListener* Listener() const { return m_listener; }
    HeadlessSurface* Parent() const { return m_parent; }
    const std::vector<HeadlessSurface*>& Children() const { return m_children; }
    WindowTree& Tree() const { return m_tree; }
    bool HasCapture() const { return m_tree.Capture() == this; }
    const RasterCanvas& WindowImage() const { return m_window; }
    // The width of the border on each side, in pixels.
    using SurfaceProperties::BorderPixels;
    ColorRef WindowPixel(int32_t x, int32_t y) const { return m_window.Pixel(x, y); }
    int RefreshCount() const { return m_refreshes; }
    int PresentCount() const { return m_presents; }
    // What a screen reader heard, oldest first; taking them empties the record.
    struct Announcement {
        AccessibleEvent event;
        int32_t item;
        bool operator==(const Announcement&) const = default;
    };
    std::vector<Announcement> TakeAnnouncements() { return std::exchange(m_announcements, {}); }
    // The client origin on the screen of a surface without parent; children add their offsets.
    void SetScreenOrigin(PixelPoint origin) { m_screenOrigin = origin; }
    // Makes a surface without parent a top-level pop-up window: placed on the screen by Move,
    // active while it shows.
    void MakePopupWindow() { m_popupWindow = true; }
    bool IsPopupWindow() const { return m_popupWindow; }
    // Enabled here and in every ancestor.
    bool AcceptsInput() const;

    // Input, as the platform delivers it. Key helpers return the key after the handlers ran
    // (a handler may change it).
    void MouseDown(int16_t button, int16_t shift, float x, float y);
    void MouseMove(int16_t button, int16_t shift, float x, float y);
    void MouseUp(int16_t button, int16_t shift, float x, float y);
    void Click();
    void DblClick();
    int16_t KeyDown(int16_t keyCode, int16_t shift);
    int16_t KeyPress(int16_t keyAscii);
    int16_t KeyUp(int16_t keyCode, int16_t shift);
    // Alt plus key: delivered when the key is one of the access keys (letters in either case);
    // returns whether it was.
    bool AccessKey(char16_t key);

    // Host requests.
    void Resize(float width, float height); // the container sizes the control; OnResize always
    void Paint();
    void AmbientChanged(StringView name);
    void Show();
    void Hide();

private:
    void ResizeWindowImage();

    WindowTree& m_tree;
    HeadlessSurface* m_parent;
    std::vector<HeadlessSurface*> m_children;
    SurfaceListener* m_listener = nullptr;
    RasterCanvas m_window { 0, 0 };
    PixelPoint m_screenOrigin;
    bool m_popupWindow = false;
    int m_refreshes = 0;
    int m_presents = 0;
    std::vector<Announcement> m_announcements;
};

} // namespace tolva::headless
