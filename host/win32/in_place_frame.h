#pragma once
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/com_ptr.h"
#include <oleidl.h>

namespace tolva::host {

// The form window as the in-place frame of its controls: it keeps the UI-active object and
// offers no menus or toolbar space of its own to merge.
class InPlaceFrame final : public win32::ComObject<IOleInPlaceFrame> {
public:
    explicit InPlaceFrame(HWND window)
        : m_window(window)
    { }
    void Disconnect();
    IOleInPlaceActiveObject* ActiveObject() const { return m_active.Get(); }

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override;
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

protected:
    void* Find(REFIID iid) override;

private:
    HWND m_window;
    win32::ComPtr<IOleInPlaceActiveObject> m_active;
};

} // namespace tolva::host
