#pragma once
#include "platform/win32/com/untyped_dispatch.h"
#include <ocidl.h>
#include <oleidl.h>

namespace tolva::host {

class FormControl;

// The container's side of one control: the client site, the in-place site in the form's window,
// the control site (extender, focus, control-info changes) and the ambient properties (the
// site's IDispatch). It outlives its form control only as a shell: once disconnected it
// refuses what needs the form.
class ClientSite final : public win32::UntypedDispatch<IOleClientSite, IOleInPlaceSite, IOleControlSite, IDispatch> {
public:
    explicit ClientSite(FormControl& control)
        : m_control(&control)
    { }
    void Disconnect() { m_control = nullptr; }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }
    // IOleWindow
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override;
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override;
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
        LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO info) override;
    HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override;
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT position) override;
    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extender) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }
    // IDispatch: the ambient properties
    HRESULT STDMETHODCALLTYPE Invoke(
        DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*) override;

protected:
    void* Find(REFIID iid) override;

private:
    FormControl* m_control;
};

} // namespace tolva::host
