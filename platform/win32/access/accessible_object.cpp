#include "platform/win32/access/accessible_object.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/window/window_surface.h"
#include <new>
#include <utility>

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
    case AccessibleRole::PageTabList:
        return ROLE_SYSTEM_PAGETABLIST;
    case AccessibleRole::PageTab:
        return ROLE_SYSTEM_PAGETAB;
    case AccessibleRole::Grouping:
        return ROLE_SYSTEM_GROUPING;
    case AccessibleRole::EditableText:
        return ROLE_SYSTEM_TEXT;
    case AccessibleRole::List:
        return ROLE_SYSTEM_LIST;
    case AccessibleRole::ListItem:
        return ROLE_SYSTEM_LISTITEM;
    case AccessibleRole::Table:
        return ROLE_SYSTEM_TABLE;
    case AccessibleRole::Row:
        return ROLE_SYSTEM_ROW;
    case AccessibleRole::Cell:
        return ROLE_SYSTEM_CELL;
    case AccessibleRole::StaticText:
        break;
    }
    return ROLE_SYSTEM_STATICTEXT;
}

LONG StateOf(uint32_t state)
{
    constexpr std::pair<uint32_t, LONG> bits[] = {
        { AccessibleState::Focused, STATE_SYSTEM_FOCUSED },
        { AccessibleState::Focusable, STATE_SYSTEM_FOCUSABLE },
        { AccessibleState::Hot, STATE_SYSTEM_HOTTRACKED },
        { AccessibleState::Pressed, STATE_SYSTEM_PRESSED },
        { AccessibleState::Unavailable, STATE_SYSTEM_UNAVAILABLE },
        { AccessibleState::Selected, STATE_SYSTEM_SELECTED },
        { AccessibleState::Selectable, STATE_SYSTEM_SELECTABLE },
        { AccessibleState::ReadOnly, STATE_SYSTEM_READONLY },
        { AccessibleState::Collapsed, STATE_SYSTEM_COLLAPSED },
        { AccessibleState::Expanded, STATE_SYSTEM_EXPANDED },
        { AccessibleState::Offscreen, STATE_SYSTEM_OFFSCREEN },
    };
    LONG result = 0;
    for (const auto& [core, system] : bits)
        if (state & core)
            result |= system;
    return result;
}

DWORD WinEventOf(AccessibleEvent event)
{
    switch (event) {
    case AccessibleEvent::Focus:
        return EVENT_OBJECT_FOCUS;
    case AccessibleEvent::Selection:
        return EVENT_OBJECT_SELECTION;
    case AccessibleEvent::ValueChange:
        return EVENT_OBJECT_VALUECHANGE;
    case AccessibleEvent::StateChange:
        break;
    }
    return EVENT_OBJECT_STATECHANGE;
}

void SetI4(VARIANT* out, LONG value)
{
    VariantInit(out);
    out->vt = VT_I4;
    out->lVal = value;
}

// A child id names item id - 1; CHILDID_SELF (0) the object itself.
LONG ChildIdOf(int32_t item)
{
    return item == AccessibleElement::None ? CHILDID_SELF : LONG(item) + 1;
}

VARIANT SelfId()
{
    VARIANT self;
    SetI4(&self, CHILDID_SELF);
    return self;
}

} // namespace

void NotifyAccessibleEvent(HWND window, AccessibleEvent event, int32_t item)
{
    NotifyWinEvent(WinEventOf(event), window, OBJID_CLIENT, ChildIdOf(item));
}

AccessibleObject::AccessibleObject(
    std::shared_ptr<AccessibleLink> link, std::unique_ptr<AccessibleElement> item, ComPtr<IDispatch> parent)
    : m_link(std::move(link))
    , m_item(std::move(item))
    , m_parent(std::move(parent))
{ }

// MinGW's import library gives IID_IAccessible as a thunk into oleacc rather than the GUID, so
// the interface's id comes from its declaration.
LRESULT AccessibleObject::Answer(std::shared_ptr<AccessibleLink> link, WPARAM wParam)
{
    auto object = ComPtr<IAccessible>::Adopt(new (std::nothrow) AccessibleObject(std::move(link), nullptr, {}));
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

AccessibleElement* AccessibleObject::Self() const
{
    if (!m_link->element || !m_link->surface || !m_link->surface->Window())
        return nullptr;
    if (!m_item)
        return m_link->element;
    return m_item->Exists() ? m_item.get() : nullptr;
}

HWND AccessibleObject::Window() const
{
    return m_link->surface->Window();
}

template <class Body> HRESULT AccessibleObject::With(const VARIANT& child, Body&& body)
{
    if (child.vt != VT_I4)
        return E_INVALIDARG;
    AccessibleElement* self = Self();
    if (!self)
        return CO_E_OBJNOTCONNECTED;
    return Guarded(__uuidof(IAccessible), [&]() -> HRESULT {
        if (child.lVal == CHILDID_SELF)
            return body(*self, !m_item);
        if (child.lVal < 1 || child.lVal > self->ChildCount())
            return E_INVALIDARG;
        const std::unique_ptr<AccessibleElement> item = self->Child(child.lVal - 1);
        return item ? body(*item, false) : E_INVALIDARG;
    });
}

HRESULT AccessibleObject::Text(const VARIANT& child, BSTR* out, String AccessibleDescription::*member)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return With(child, [&](AccessibleElement& element, bool) -> HRESULT {
        const String text = element.Describe().*member;
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
    if (!Self())
        return CO_E_OBJNOTCONNECTED;
    if (m_parent) {
        *parent = ComPtr<IDispatch>(m_parent).Detach();
        return S_OK;
    }
    return CreateStdAccessibleObject(Window(), OBJID_WINDOW, IID_IDispatch, reinterpret_cast<void**>(parent));
}

HRESULT AccessibleObject::get_accChildCount(long* count)
{
    if (!count)
        return E_POINTER;
    *count = 0;
    return With(SelfId(), [&](AccessibleElement& self, bool) {
        *count = self.ChildCount();
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accChild(VARIANT child, IDispatch** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return With(SelfId(), [&](AccessibleElement& self, bool) -> HRESULT {
        if (child.vt != VT_I4 || child.lVal < 1 || child.lVal > self.ChildCount())
            return E_INVALIDARG;
        std::unique_ptr<AccessibleElement> item = self.Child(child.lVal - 1);
        if (!item)
            return E_INVALIDARG;
        auto object = ComPtr<IDispatch>::Adopt(new AccessibleObject(m_link, std::move(item), ComPtr<IDispatch>(this)));
        *out = object.Detach();
        return S_OK;
    });
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
    return With(child, [](AccessibleElement&, bool) { return S_FALSE; });
}

HRESULT AccessibleObject::get_accRole(VARIANT child, VARIANT* role)
{
    if (!role)
        return E_POINTER;
    VariantInit(role);
    return With(child, [&](AccessibleElement& element, bool) {
        SetI4(role, RoleOf(element.Describe().role));
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accState(VARIANT child, VARIANT* state)
{
    if (!state)
        return E_POINTER;
    VariantInit(state);
    return With(child, [&](AccessibleElement& element, bool isControl) {
        const bool hidden = isControl && !IsWindowVisible(Window());
        SetI4(state, StateOf(element.Describe().state) | (hidden ? STATE_SYSTEM_INVISIBLE : 0));
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
    return With(SelfId(), [&](AccessibleElement& self, bool) {
        if (const int32_t item = self.FocusedChild(); item != AccessibleElement::None)
            SetI4(focus, ChildIdOf(item));
        else if (self.Describe().state & AccessibleState::Focused)
            SetI4(focus, CHILDID_SELF);
        else
            return S_FALSE;
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accSelection(VARIANT* selection)
{
    if (!selection)
        return E_POINTER;
    VariantInit(selection);
    return With(SelfId(), [&](AccessibleElement& self, bool) {
        const int32_t item = self.SelectedChild();
        if (item == AccessibleElement::None)
            return S_FALSE;
        SetI4(selection, ChildIdOf(item));
        return S_OK;
    });
}

HRESULT AccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action)
{
    return Text(child, action, &AccessibleDescription::defaultAction);
}

HRESULT AccessibleObject::accSelect(long flags, VARIANT child)
{
    return With(child, [&](AccessibleElement& element, bool isControl) -> HRESULT {
        if (isControl && flags == SELFLAG_TAKEFOCUS) {
            if (!(element.Describe().state & AccessibleState::Focusable))
                return S_FALSE;
            m_link->surface->SetFocus();
            return S_OK;
        }
        if (!isControl && (flags & ~SELFLAG_TAKEFOCUS) == SELFLAG_TAKESELECTION)
            return element.Select() ? S_OK : S_FALSE;
        return DISP_E_MEMBERNOTFOUND;
    });
}

// The control is where its window is; an item says where it is in the window's client area.
HRESULT AccessibleObject::accLocation(long* left, long* top, long* width, long* height, VARIANT child)
{
    if (!left || !top || !width || !height)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    return With(child, [&](AccessibleElement& element, bool isControl) {
        RECT rect;
        if (isControl) {
            if (!GetWindowRect(Window(), &rect))
                return HRESULT_FROM_WIN32(GetLastError());
        } else {
            const Rect location = element.Describe().location;
            POINT origin {};
            ClientToScreen(Window(), &origin);
            rect = { origin.x + location.left, origin.y + location.top, origin.x + location.right,
                origin.y + location.bottom };
        }
        *left = rect.left;
        *top = rect.top;
        *width = rect.right - rect.left;
        *height = rect.bottom - rect.top;
        return S_OK;
    });
}

// Inside the object: to its first or last child, and between children. Between windows the
// parent navigates.
HRESULT AccessibleObject::accNavigate(long direction, VARIANT start, VARIANT* end)
{
    if (!end)
        return E_POINTER;
    VariantInit(end);
    if (start.vt != VT_I4)
        return E_INVALIDARG;
    return With(SelfId(), [&](AccessibleElement& self, bool) -> HRESULT {
        const long count = self.ChildCount();
        if (start.lVal < 0 || start.lVal > count)
            return E_INVALIDARG;
        long target = 0;
        if (start.lVal == CHILDID_SELF && direction == NAVDIR_FIRSTCHILD)
            target = 1;
        else if (start.lVal == CHILDID_SELF && direction == NAVDIR_LASTCHILD)
            target = count;
        else if (start.lVal != CHILDID_SELF && (direction == NAVDIR_NEXT || direction == NAVDIR_DOWN))
            target = start.lVal + 1;
        else if (start.lVal != CHILDID_SELF && (direction == NAVDIR_PREVIOUS || direction == NAVDIR_UP))
            target = start.lVal - 1;
        if (target < 1 || target > count)
            return S_FALSE;
        SetI4(end, target);
        return S_OK;
    });
}

HRESULT AccessibleObject::accHitTest(long x, long y, VARIANT* child)
{
    if (!child)
        return E_POINTER;
    VariantInit(child);
    return With(SelfId(), [&](AccessibleElement&, bool) {
        RECT rect;
        if (!GetWindowRect(Window(), &rect) || !PtInRect(&rect, POINT { x, y }))
            return S_FALSE;
        SetI4(child, CHILDID_SELF);
        return S_OK;
    });
}

// The action may raise an event whose handler releases the control's last reference; the
// control's COM object is held for the call, as for a window message.
HRESULT AccessibleObject::accDoDefaultAction(VARIANT child)
{
    return With(child, [&](AccessibleElement& element, bool) {
        const ComPtr<IUnknown> keepAlive(m_link->surface->KeepAlive());
        return element.DoDefaultAction() ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
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
