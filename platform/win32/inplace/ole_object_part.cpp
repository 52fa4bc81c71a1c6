#include "platform/win32/inplace/ole_object_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/inplace/himetric.h"
#include "platform/win32/inplace/in_place_part.h"
#include "platform/win32/inplace/view_object_part.h"
#include <ole2.h>

namespace tolva::win32 {

void* OleObjectPart::Interface(REFIID iid)
{
    return iid == IID_IOleObject ? static_cast<IOleObject*>(this) : nullptr;
}

IOleAdviseHolder* OleObjectPart::AdviseHolder()
{
    if (!m_adviseHolder)
        CreateOleAdviseHolder(m_adviseHolder.Put());
    return m_adviseHolder.Get();
}

HRESULT OleObjectPart::SetClientSite(IOleClientSite* site)
{
    return Entered(IID_IOleObject, [&] {
        m_object.Site().SetClientSite(site);
        return S_OK;
    });
}

HRESULT OleObjectPart::GetClientSite(IOleClientSite** site)
{
    if (!site)
        return E_POINTER;
    *site = ComPtr<IOleClientSite>(m_object.Site().ClientSite()).Detach();
    return S_OK;
}

HRESULT OleObjectPart::SetHostNames(LPCOLESTR, LPCOLESTR)
{
    return S_OK;
}

HRESULT OleObjectPart::Close(DWORD saveOption)
{
    ComPtr<IUnknown> keepAlive(&m_object);
    if (m_object.IsDirty() && saveOption != OLECLOSE_NOSAVE)
        if (IOleClientSite* site = m_object.Site().ClientSite())
            site->SaveObject();
    if (auto* inPlace = m_object.FindPart<InPlacePart>())
        inPlace->InPlaceDeactivate();
    if (m_adviseHolder)
        m_adviseHolder->SendOnClose();
    return S_OK;
}

HRESULT OleObjectPart::SetMoniker(DWORD, IMoniker*)
{
    return E_NOTIMPL;
}

HRESULT OleObjectPart::GetMoniker(DWORD, DWORD, IMoniker** moniker)
{
    if (moniker)
        *moniker = nullptr;
    return E_NOTIMPL;
}

HRESULT OleObjectPart::InitFromData(IDataObject*, BOOL, DWORD)
{
    return E_NOTIMPL;
}

HRESULT OleObjectPart::GetClipboardData(DWORD, IDataObject** data)
{
    if (data)
        *data = nullptr;
    return E_NOTIMPL;
}

HRESULT OleObjectPart::DoVerb(LONG verb, LPMSG, IOleClientSite* site, LONG, HWND, LPCRECT position)
{
    auto* inPlace = m_object.FindPart<InPlacePart>();
    if (!inPlace)
        return E_UNEXPECTED;
    return Entered(IID_IOleObject, [&]() -> HRESULT {
        switch (verb) {
        case OLEIVERB_PRIMARY:
        case OLEIVERB_SHOW:
        case OLEIVERB_UIACTIVATE: {
            const HRESULT activated = inPlace->Activate(site, position, true);
            // Shown again after a HIDE verb.
            if (HWND window = inPlace->Surface().Window(); window && inPlace->Surface().Visible())
                ShowWindow(window, SW_SHOWNA);
            return activated;
        }
        case OLEIVERB_INPLACEACTIVATE:
            return inPlace->Activate(site, position, false);
        case OLEIVERB_HIDE:
            inPlace->UIDeactivate();
            if (HWND window = inPlace->Surface().Window())
                ShowWindow(window, SW_HIDE);
            return S_OK;
        case OLEIVERB_DISCARDUNDOSTATE:
            return S_OK;
        default:
            return verb < 0 ? E_NOTIMPL : OLEOBJ_S_INVALIDVERB;
        }
    });
}

HRESULT OleObjectPart::EnumVerbs(IEnumOLEVERB** verbs)
{
    return OleRegEnumVerbs(*m_object.Class().clsid, verbs);
}

HRESULT OleObjectPart::Update()
{
    return S_OK;
}

HRESULT OleObjectPart::IsUpToDate()
{
    return S_OK;
}

HRESULT OleObjectPart::GetUserClassID(CLSID* clsid)
{
    if (!clsid)
        return E_POINTER;
    *clsid = *m_object.Class().clsid;
    return S_OK;
}

HRESULT OleObjectPart::GetUserType(DWORD form, LPOLESTR* type)
{
    return OleRegGetUserType(*m_object.Class().clsid, form, type);
}

// A container that sizes the control before activating it sets the extent; once the control is
// in place its window follows SetObjectRects instead (some containers pass stale extents).
HRESULT OleObjectPart::SetExtent(DWORD aspect, SIZEL* size)
{
    if (!size)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (size->cx < 0 || size->cy < 0)
        return E_INVALIDARG;
    auto* inPlace = m_object.FindPart<InPlacePart>();
    if (inPlace && inPlace->IsInPlaceActive())
        return S_OK;
    return Entered(IID_IOleObject, [&] {
        Surface& surface = m_object.ControlSurface();
        const float twips = float(SurfaceProperties::TwipsPerPixel);
        surface.Move(surface.Left(), surface.Top(), float(HimetricToPixels(size->cx)) * twips,
            float(HimetricToPixels(size->cy)) * twips);
        return S_OK;
    });
}

HRESULT OleObjectPart::GetExtent(DWORD aspect, SIZEL* size)
{
    if (!size)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    auto* view = m_object.FindPart<ViewObjectPart>();
    if (!view)
        return E_UNEXPECTED;
    *size = view->Extent();
    return S_OK;
}

HRESULT OleObjectPart::Advise(IAdviseSink* sink, DWORD* connection)
{
    IOleAdviseHolder* holder = AdviseHolder();
    return holder ? holder->Advise(sink, connection) : E_OUTOFMEMORY;
}

HRESULT OleObjectPart::Unadvise(DWORD connection)
{
    ComPtr<IUnknown> keepAlive(&m_object); // the sink may release the object as it goes
    return m_adviseHolder ? m_adviseHolder->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT OleObjectPart::EnumAdvise(IEnumSTATDATA** advises)
{
    IOleAdviseHolder* holder = AdviseHolder();
    return holder ? holder->EnumAdvise(advises) : E_OUTOFMEMORY;
}

HRESULT OleObjectPart::GetMiscStatus(DWORD aspect, DWORD* status)
{
    if (!status)
        return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? m_object.Class().behaviour.miscStatus : 0;
    return S_OK;
}

HRESULT OleObjectPart::SetColorScheme(LOGPALETTE*)
{
    return E_NOTIMPL;
}

} // namespace tolva::win32
