#include "platform/win32/access/accessible_object.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/error_reporting.h"
#include <new>

namespace tolva::win32 {
namespace {

LONG RoleOf(AccessibleRole role)
{
    switch (role) {
    case AccessibleRole::PushButton:
        return ROLE_SYSTEM_PUSHBUTTON;
    case AccessibleRole::Link:
        return ROLE_SYSTEM_LINK;
    case AccessibleRole::ScrollBar:
        return ROLE_SYSTEM_SCROLLBAR;
    case AccessibleRole::StaticText:
        break;
    }
    return ROLE_SYSTEM_STATICTEXT;
}

LONG StateOf(uint32_t state, HWND window)
{
    constexpr std::pair<uint32_t, LONG> bits[] = {
        { AccessibleState::Focused, STATE_SYSTEM_FOCUSED },
        { AccessibleState::Focusable, STATE_SYSTEM_FOCUSABLE },
        { AccessibleState::Hot, STATE_SYSTEM_HOTTRACKED },
        { AccessibleState::Pressed, STATE_SYSTEM_PRESSED },
        { AccessibleState::Unavailable, STATE_SYSTEM_UNAVAILABLE },
    };
    LONG result = IsWindowVisible(window) ? 0 : STATE_SYSTEM_INVISIBLE;
    for (const auto& [core, system] : bits)
        if (state & core)
            result |= system;
    return result;
}

void SetI4(VARIANT* out, LONG value)
{
    VariantInit(out);
    out->vt = VT_I4;
    out->lVal = value;
}

bool IsSelf(const VARIANT& child)
{
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
}

} // namespace

AccessibleObject::AccessibleObject(IUnknown& keepAlive, WindowSurface& surface, AccessibleControl& control)
    : m_keepAlive(&keepAlive)
    , m_surface(surface)
    , m_control(control)
{ }

// MinGW's import library gives IID_IAccessible as a thunk into oleacc rather than the GUID, so
// the interface's id comes from its declaration.
LRESULT AccessibleObject::Answer(IUnknown& keepAlive, WindowSurface& surface, AccessibleControl& control, WPARAM wParam)
{
    auto object = ComPtr<IAccessible>::Adopt(new (std::nothrow) AccessibleObject(keepAlive, surface, control));
    if (!object)
        return 0;
    const LRESULT result = LresultFromObject(__uuidof(IAccessible), wParam, object.Get());
    return FAILED(result) ? 0 : result;
}

void* AccessibleObject::Find(REFIID iid)
{
    if (iid == IID_IDispatch || iid == __uuidof(IAccessible))
        return static_cast<IAccessible*>(this);
    return nullptr;
}

template <class Body> HRESULT AccessibleObject::ForSelf(const VARIANT& child, Body&& body)
{
    if (!IsSelf(child))
        return E_INVALIDARG;
    if (!m_surface.Window())
        return CO_E_OBJNOTCONNECTED;
    return Guarded(__uuidof(IAccessible), std::forward<Body>(body));
}

HRESULT AccessibleObject::Text(const VARIANT& child, BSTR* out, String AccessibleDescription::*member)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return ForSelf(child, [&]() -> HRESULT {
        const String text = m_control.Describe().*member;
        if (text.empty())
            return S_FALSE;
        *out = Bstr(text).Detach();
        return S_OK;
    });
}

HRESULT AccessibleObject::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*)
{
    return DISP_E_MEMBERNOTFOUND;
}

HRESULT AccessibleObject::get_accParent(IDispatch** parent)
{
    if (!parent)
        return E_POINTER;
    *parent = nullptr;
    HWND window = m_surface.Window();
    if (!window)
        return CO_E_OBJNOTCONNECTED;
    return CreateStdAccessibleObject(window, OBJID_WINDOW, IID_IDispatch, reinterpret_cast<void**>(parent));
}

HRESULT AccessibleObject::get_accChildCount(long* count)
{
    if (!count)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT AccessibleObject::get_accChild(VARIANT, IDispatch** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return E_INVALIDARG;
}

HRESULT AccessibleObject::get_accName(VARIANT child, BSTR* name)
{
    return Text(child, name, &AccessibleDescription::name);
}

HRESULT AccessibleObject::get_accValue(VARIANT child, BSTR* value)
{
    return Text(child, value, &AccessibleDescription::value);
}

HRESULT AccessibleObject::get_accDescription(VARIANT child, BSTR* description)
{
    if (!description)
        return E_POINTER;
    *description = nullptr;
    return IsSelf(child) ? S_FALSE : E_INVALIDARG;
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role)
{
    if (!role)
        return E_POINTER;
    VariantInit(role);
    return ForSelf(child, [&] {
        SetI4(role, RoleOf(m_control.Describe().role));
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state)
{
    if (!state)
        return E_POINTER;
    VariantInit(state);
    return ForSelf(child, [&] {
        SetI4(state, StateOf(m_control.Describe().state, m_surface.Window()));
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accHelp(VARIANT child, BSTR* help)
{
    return get_accDescription(child, help);
}

HRESULT AccessibleObject::get_accHelpTopic(BSTR* file, VARIANT, long* topic)
{
    if (file)
        *file = nullptr;
    if (topic)
        *topic = -1;
    return S_FALSE;
}

HRESULT AccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut)
{
    return Text(child, shortcut, &AccessibleDescription::shortcut);
}

HRESULT AccessibleObject::get_accFocus(VARIANT* focus)
{
    if (!focus)
        return E_POINTER;
    VariantInit(focus);
    VARIANT self;
    SetI4(&self, CHILDID_SELF);
    return ForSelf(self, [&] {
        if (!(m_control.Describe().state & AccessibleState::Focused))
            return S_FALSE;
        SetI4(focus, CHILDID_SELF);
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accSelection(VARIANT* selection)
{
    if (!selection)
        return E_POINTER;
    VariantInit(selection);
    return S_FALSE;
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return Text(child, action, &AccessibleDescription::defaultAction);
}

HRESULT AccessibleObject::accSelect(long flags, VARIANT child)
{
    return ForSelf(child, [&] {
        if (flags != SELFLAG_TAKEFOCUS)
            return DISP_E_MEMBERNOTFOUND;
        if (!(m_control.Describe().state & AccessibleState::Focusable))
            return S_FALSE;
        m_surface.SetFocus();
        return S_OK;
    });
}

HRESULT AccessibleObject::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    if (!left || !top || !width || !height)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    return ForSelf(child, [&] {
        RECT rect;
        if (!GetWindowRect(m_surface.Window(), &rect))
            return HRESULT_FROM_WIN32(GetLastError());
        *left = rect.left;
        *top = rect.top;
        *width = rect.right - rect.left;
        *height = rect.bottom - rect.top;
        return S_OK;
    });
}

HRESULT AccessibleObject::accNavigate(long, VARIANT start, VARIANT* end)
{
    if (!end)
        return E_POINTER;
    VariantInit(end);
    // Without children there is nowhere to go inside; the parent navigates between windows.
    return IsSelf(start) ? S_FALSE : E_INVALIDARG;
}

HRESULT AccessibleObject::accHitTest(long x, long y, VARIANT* child)
{
    if (!child)
        return E_POINTER;
    VariantInit(child);
    VARIANT self;
    SetI4(&self, CHILDID_SELF);
    return ForSelf(self, [&] {
        RECT rect;
        if (!GetWindowRect(m_surface.Window(), &rect) || !PtInRect(&rect, POINT { x, y }))
            return S_FALSE;
        SetI4(child, CHILDID_SELF);
        return S_OK;
    });
}

HRESULT AccessibleObject::accDoDefaultAction(VARIANT child)
{
    return ForSelf(child, [&] { return m_control.DoDefaultAction() ? S_OK : DISP_E_MEMBERNOTFOUND; });
}

HRESULT AccessibleObject::put_accName(VARIANT, BSTR)
{
    return E_NOTIMPL;
}

HRESULT AccessibleObject::put_accValue(VARIANT, BSTR)
{
    return E_NOTIMPL;
}

} // namespace tolva::win32
