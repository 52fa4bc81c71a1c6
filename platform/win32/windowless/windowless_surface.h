#pragma once
#include "core/surface_properties.h"
#include "platform/win32/windows_api.h"
#include <objbase.h>

namespace tolva::win32 {

// The surface of a control that has no window, as when a script creates it: the stored
// properties of every surface, drawing skipped, no focus or capture, windowless children and
// thread timers. Whoever stands in for the window delivers notifications to Listener().
class WindowlessSurface : public SurfaceProperties {
public:
    // owner: the COM object of the control, held by the timers while they tick (may be null).
    explicit WindowlessSurface(IUnknown* owner)
        : m_owner(owner)
    { }

    void SetListener(SurfaceListener* listener) override { m_listener = listener; }
    SurfaceListener* Listener() const { return m_listener; }

    bool HasFocus() const override { return false; }
    void SetFocus() override { }
    void SetCapture() override { }
    void ReleaseCapture() override { }
    PixelPoint ScreenOrigin() const override { return {}; }
    PixelPoint ScreenSize() const override;
    void Refresh() override { }

    std::unique_ptr<Canvas> CreateCanvas(int32_t width, int32_t height) override;
    void Present(const Canvas&, int32_t, int32_t, int32_t, int32_t) override { }

    std::unique_ptr<Surface> CreateChild() override;
    std::unique_ptr<TextBox> CreateTextBox() override; // a model: there is no window to type in
    std::unique_ptr<Timer> CreateTimer() override;
    // Without a window of its own there is nobody to tell.
    void Announce(AccessibleEvent, int32_t) override { }

private:
    IUnknown* m_owner;
    SurfaceListener* m_listener = nullptr;
};

} // namespace tolva::win32
