#include "host/win32/client_site.h"
#include "host/win32/form_control.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/font_conversion.h"
#include <olectl.h>

namespace tolva::host {

void* ClientSite::Find(REFIID iid)
{
    if (iid == IID_IOleClientSite)
        return static_cast<IOleClientSite*>(this);
    if (iid == IID_IOleWindow || iid == IID_IOleInPlaceSite)
        return static_cast<IOleInPlaceSite*>(this);
    if (iid == IID_IOleControlSite)
        return static_cast<IOleControlSite*>(this);
    if (iid == IID_IDispatch)
        return static_cast<IDispatch*>(this);
    return nullptr;
}

HRESULT ClientSite::GetMoniker(DWORD, DWORD, IMoniker** moniker)
{
    if (moniker)
        *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT ClientSite::GetContainer(IOleContainer** container)
{
    if (container)
        *container = nullptr;
    return E_NOINTERFACE;
}

HRESULT ClientSite::GetWindow(HWND* window)
{
    if (!window)
        return E_POINTER;
    *window = m_control ? m_control->Form().Window() : nullptr;
    return *window ? S_OK : E_FAIL;
}

HRESULT ClientSite::CanInPlaceActivate()
{
    return m_control ? S_OK : S_FALSE;
}

HRESULT ClientSite::OnUIActivate()
{
    if (m_control)
        m_control->Form().OnControlUIActivate(*m_control);
    return S_OK;
}

HRESULT ClientSite::OnUIDeactivate(BOOL)
{
    if (m_control)
        m_control->Form().OnControlUIDeactivate(*m_control);
    return S_OK;
}

HRESULT ClientSite::GetWindowContext(
    IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position, LPRECT clip, LPOLEINPLACEFRAMEINFO info)
{
    if (!frame || !document || !position || !clip || !info)
        return E_POINTER;
    *frame = nullptr;
    *document = nullptr;
    if (!m_control)
        return E_UNEXPECTED;
    HostForm& form = m_control->Form();
    *frame = form.Frame();
    (*frame)->AddRef();
    *position = m_control->Rect();
    GetClientRect(form.Window(), clip);
    info->fMDIApp = FALSE;
    info->hwndFrame = form.Window();
    info->haccel = nullptr;
    info->cAccelEntries = 0;
    return S_OK;
}

HRESULT ClientSite::OnPosRectChange(LPCRECT position)
{
    if (!position)
        return E_POINTER;
    if (m_control)
        m_control->SetRect(*position);
    return S_OK;
}

HRESULT ClientSite::GetExtendedControl(IDispatch** extender)
{
    if (!extender)
        return E_POINTER;
    *extender = m_control ? m_control->Extender() : nullptr;
    if (!*extender)
        return E_NOTIMPL;
    (*extender)->AddRef();
    return S_OK;
}

// The form measures in twips: 1440 to the inch, 2540 HIMETRIC to the inch.
HRESULT ClientSite::TransformCoords(POINTL* himetric, POINTF* container, DWORD flags)
{
    if (!himetric || !container)
        return E_POINTER;
    if (flags & XFORMCOORDS_HIMETRICTOCONTAINER) {
        container->x = float(himetric->x) * 1440.0f / 2540.0f;
        container->y = float(himetric->y) * 1440.0f / 2540.0f;
    } else if (flags & XFORMCOORDS_CONTAINERTOHIMETRIC) {
        himetric->x = LONG(container->x * 2540.0f / 1440.0f);
        himetric->y = LONG(container->y * 2540.0f / 1440.0f);
    } else {
        return E_INVALIDARG;
    }
    return S_OK;
}

HRESULT ClientSite::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (!(flags & DISPATCH_PROPERTYGET) || !result)
        return DISP_E_MEMBERNOTFOUND;
    VariantInit(result);
    if (!m_control)
        return DISP_E_MEMBERNOTFOUND;
    HostForm& form = m_control->Form();
    switch (id) {
    case DISPID_AMBIENT_USERMODE:
        win32::PutBool(*result, form.UserMode());
        return S_OK;
    case DISPID_AMBIENT_DISPLAYASDEFAULT:
        win32::PutBool(*result, m_control->IsDefault());
        return S_OK;
    case DISPID_AMBIENT_FONT:
        V_VT(result) = VT_DISPATCH;
        V_DISPATCH(result) = nullptr;
        if (auto font = win32::CreateStdFont(form.AmbientFont()))
            font->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&V_DISPATCH(result)));
        return S_OK;
    case DISPID_AMBIENT_BACKCOLOR:
        win32::PutColor(*result, form.BackColor());
        return S_OK;
    case DISPID_AMBIENT_FORECOLOR:
        win32::PutColor(*result, form.ForeColor());
        return S_OK;
    case DISPID_AMBIENT_DISPLAYNAME:
        win32::PutText(*result, m_control->Name());
        return S_OK;
    case DISPID_AMBIENT_LOCALEID:
        win32::PutInt32(*result, int32_t(GetUserDefaultLCID()));
        return S_OK;
    case DISPID_AMBIENT_SUPPORTSMNEMONICS:
        win32::PutBool(*result, true);
        return S_OK;
    case DISPID_AMBIENT_MESSAGEREFLECT:
    case DISPID_AMBIENT_SHOWGRABHANDLES:
    case DISPID_AMBIENT_SHOWHATCHING:
    case DISPID_AMBIENT_UIDEAD:
        win32::PutBool(*result, false);
        return S_OK;
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace tolva::host
