#pragma once
#include "core/string.h"
#include "core/surface.h"
#include "platform/headless/virtual_clock.h"

namespace tolva::headless {

class HeadlessSurface;

// What the window manager keeps for a set of headless surfaces: which one has the keyboard
// focus, which one holds the mouse capture, which pop-up window is active, and the clock their timers run on. The tree must
// outlive its surfaces.
class WindowTree {
public:
    WindowTree() = default;
    WindowTree(const WindowTree&) = delete;
    WindowTree& operator=(const WindowTree&) = delete;

    HeadlessSurface* Focus() const { return m_focus; }
    HeadlessSurface* Capture() const { return m_capture; }
    // The active top-level window: a pop-up window while it shows, else nullptr (the form or
    // another application).
    HeadlessSurface* Active() const { return m_active; }
    VirtualClock& Clock() { return m_clock; }
    // The screen the windows are on, in pixels (1024 x 768 unless set), and its clipboard text.
    PixelPoint ScreenSize() const { return m_screenSize; }
    void SetScreenSize(PixelPoint size) { m_screenSize = size; }
    String& Clipboard() { return m_clipboard; }

    // Moves the keyboard focus: the surface that had it is told LostFocus, then the new one
    // GotFocus. nullptr takes the focus out of the tree (to another application).
    void SetFocus(HeadlessSurface* surface);
    void SetCapture(HeadlessSurface* surface) { m_capture = surface; }
    void ReleaseCapture() { m_capture = nullptr; }

    // Makes another window active; the one that was active is told OnDeactivate first, with the
    // screen point (pixels) of the mouse press that took the activation, if one did.
    void Activate(HeadlessSurface* surface, std::optional<PixelPoint> press = {});

    // Drops a destroyed surface from focus and capture without notifying anyone.
    void Forget(const HeadlessSurface* surface);

private:
    HeadlessSurface* m_focus = nullptr;
    HeadlessSurface* m_capture = nullptr;
    HeadlessSurface* m_active = nullptr;
    VirtualClock m_clock;
    PixelPoint m_screenSize { 1024, 768 };
    String m_clipboard;
};

} // namespace tolva::headless
