#include "platform/win32/inplace/view_object_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/inplace/himetric.h"
#include "platform/win32/inplace/in_place_part.h"
#include <cmath>

namespace tolva::win32 {

void* ViewObjectPart::Interface(REFIID iid)
{
    return iid == IID_IViewObject || iid == IID_IViewObject2 ? static_cast<IViewObject2*>(this) : nullptr;
}

void ViewObjectPart::NotifyViewChange()
{
    if (m_sink && (m_aspects & DVASPECT_CONTENT)) {
        ComPtr<IAdviseSink> sink = m_sink;
        sink->OnViewChange(DVASPECT_CONTENT, -1);
        if (m_flags & ADVF_ONLYONCE)
            m_sink.Reset();
    }
}

SIZEL ViewObjectPart::Extent()
{
    const Surface& surface = m_object.ControlSurface();
    const float twips = float(SurfaceProperties::TwipsPerPixel);
    return { PixelsToHimetric(LONG(std::lround(surface.Width() / twips))),
        PixelsToHimetric(LONG(std::lround(surface.Height() / twips))) };
}

HRESULT ViewObjectPart::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC dc, LPCRECTL bounds, LPCRECTL,
    BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR)
{
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (!dc || !bounds)
        return E_INVALIDARG;
    auto* inPlace = m_object.FindPart<InPlacePart>();
    if (!inPlace)
        return E_UNEXPECTED;
    return Entered(IID_IViewObject2, [&] {
        inPlace->Surface().DrawTo(dc, RECT { bounds->left, bounds->top, bounds->right, bounds->bottom });
        return S_OK;
    });
}

HRESULT ViewObjectPart::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** colors)
{
    if (colors)
        *colors = nullptr;
    return S_FALSE;
}

HRESULT ViewObjectPart::Freeze(DWORD, LONG, void*, DWORD*)
{
    return E_NOTIMPL;
}

HRESULT ViewObjectPart::Unfreeze(DWORD)
{
    return E_NOTIMPL;
}

HRESULT ViewObjectPart::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink)
{
    ComPtr<IUnknown> keepAlive(&m_object); // the sink it replaces may release the object
    m_sink = ComPtr<IAdviseSink>(sink);
    m_aspects = aspects;
    m_flags = flags;
    return S_OK;
}

HRESULT ViewObjectPart::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink)
{
    if (aspects)
        *aspects = m_aspects;
    if (flags)
        *flags = m_flags;
    if (sink)
        *sink = ComPtr<IAdviseSink>(m_sink).Detach();
    return S_OK;
}

HRESULT ViewObjectPart::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size)
{
    if (!size)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    *size = Extent();
    return S_OK;
}

} // namespace tolva::win32
