#pragma once
#include "core/accessibility.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/untyped_dispatch.h"
#include "platform/win32/windows_api.h"
#include <memory>
#include <oleacc.h>

namespace tolva::win32 {

class WindowSurface;

// What a window's accessible objects reach the control through: the surface and the element it
// reads. The surface clears it when the element or the surface goes, so an object a screen
// reader still holds answers "not connected" rather than reaching a control that is gone.
struct AccessibleLink {
    WindowSurface* surface = nullptr;
    AccessibleElement* element = nullptr;
};

// The IAccessible of a control (item null) or of an item inside it, made when asked for. A
// control's parent is the system's standard object of its window; an item's, the object that made
// it. Children are addressed by child id (index + 1) or as objects of their own (get_accChild).
class AccessibleObject final : public UntypedDispatch<IAccessible> {
public:
    AccessibleObject(std::shared_ptr<AccessibleLink> link, std::unique_ptr<AccessibleElement> item, ComPtr<IDispatch> parent);

    // The answer to WM_GETOBJECT for the client area: a new object through LresultFromObject.
    static LRESULT Answer(std::shared_ptr<AccessibleLink> link, WPARAM wParam);

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
    // The element this object reads; null once it or its control is gone.
    AccessibleElement* Self() const;
    HWND Window() const;
    // Runs body(element, isControl) for the object itself (CHILDID_SELF) or one of its children,
    // made for the call; an unknown child is refused with E_INVALIDARG.
    template <class Body> HRESULT With(const VARIANT& child, Body&& body);
    // One of the description's texts; S_FALSE with no string when it is empty.
    HRESULT Text(const VARIANT& child, BSTR* out, String AccessibleDescription::*member);

    std::shared_ptr<AccessibleLink> m_link;
    std::unique_ptr<AccessibleElement> m_item;
    ComPtr<IDispatch> m_parent;
};

// Tells the system's event hooks about an event of the window's client object.
void NotifyAccessibleEvent(HWND window, AccessibleEvent event, int32_t item);

} // namespace tolva::win32
