#pragma once
#include "core/accessibility.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/untyped_dispatch.h"
#include "platform/win32/window/window_surface.h"
#include <oleacc.h>

namespace tolva::win32 {

// A control's IAccessible: what the core control describes, located at its window, with the
// system's standard object of that window as parent. It holds the control's COM object, so the
// control outlives it; once the window is gone every call answers "not connected".
class AccessibleObject final : public UntypedDispatch<IAccessible> {
public:
    AccessibleObject(IUnknown& keepAlive, WindowSurface& surface, AccessibleControl& control);

    // The answer to WM_GETOBJECT for the client area: a new object through LresultFromObject.
    static LRESULT Answer(IUnknown& keepAlive, WindowSurface& surface, AccessibleControl& control, WPARAM wParam);

    // IDispatch: screen readers call through the interface's table, not by name.
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override;

    // IAccessible
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** out) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override;

private:
    void* Find(REFIID iid) override;
    // Runs body for the object itself (CHILDID_SELF) while its window exists; other children
    // are refused with E_INVALIDARG.
    template <class Body> HRESULT ForSelf(const VARIANT& child, Body&& body);
    // One of the description's texts; S_FALSE with no string when it is empty.
    HRESULT Text(const VARIANT& child, BSTR* out, String AccessibleDescription::*member);

    ComPtr<IUnknown> m_keepAlive;
    WindowSurface& m_surface;
    AccessibleControl& m_control;
};

} // namespace tolva::win32
