#pragma once
#include "platform/win32/com/control_object.h"
#include "platform/win32/window/window_surface.h"
#include <oleidl.h>

namespace tolva::win32 {

// In-place activation: the control's window inside the container's, UI activation with the
// frame and document told of the active object, and the window's focus and access-key changes
// reported to the container's control site.
class InPlacePart final : public PartOf<IOleInPlaceObject, IOleInPlaceActiveObject>, private WindowSurface::Owner {
public:
    explicit InPlacePart(ControlObject& object);
    ~InPlacePart() override;

    void* Interface(REFIID iid) override;

    // Activates in place through site (the client site when null) at position (the in-place
    // site's rectangle when null), and UI-activates when ui is set.
    HRESULT Activate(IOleClientSite* site, const RECT* position, bool ui);
    bool IsInPlaceActive() const { return bool(m_inPlaceSite); }
    WindowSurface& Surface();

    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enterMode) override;
    // IOleInPlaceObject
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT position, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override;
    // IOleInPlaceActiveObject
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL activate) override;
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL activate) override;
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frameWindow) override;
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override;

private:
    void UiActivate(bool takeFocus);
    ComPtr<IOleControlSite> ControlSite() const;

    void OnSurfaceFocus(bool gotFocus) override;
    void OnAccessKeysChanged() override;
    void OnViewChanged() override;

    ComPtr<IOleInPlaceSite> m_inPlaceSite;
    ComPtr<IOleInPlaceFrame> m_frame;
    ComPtr<IOleInPlaceUIWindow> m_document;
    bool m_uiActive = false;
};

} // namespace tolva::win32
