#pragma once
#include "platform/headless/virtual_clock.h"

namespace tolva::headless {

class HeadlessSurface;

// What the window manager keeps for a set of headless surfaces: which one has the keyboard
// focus, which one holds the mouse capture, and the clock their timers run on. The tree must
// outlive its surfaces.
class WindowTree {
public:
    WindowTree() = default;
    WindowTree(const WindowTree&) = delete;
    WindowTree& operator=(const WindowTree&) = delete;

    HeadlessSurface* Focus() const { return m_focus; }
    HeadlessSurface* Capture() const { return m_capture; }
    VirtualClock& Clock() { return m_clock; }

    // Moves the keyboard focus: the surface that had it is told LostFocus, then the new one
    // GotFocus. nullptr takes the focus out of the tree (to another application).
    void SetFocus(HeadlessSurface* surface);
    void SetCapture(HeadlessSurface* surface) { m_capture = surface; }
    void ReleaseCapture() { m_capture = nullptr; }

    // Drops a destroyed surface from focus and capture without notifying anyone.
    void Forget(const HeadlessSurface* surface);

private:
    HeadlessSurface* m_focus = nullptr;
    HeadlessSurface* m_capture = nullptr;
    VirtualClock m_clock;
};

} // namespace tolva::headless
