#include "platform/win32/inplace/quick_activate_part.h"
#include "platform/win32/inplace/ole_object_part.h"
#include "platform/win32/inplace/view_object_part.h"

namespace tolva::win32 {

void* QuickActivatePart::Interface(REFIID iid)
{
    return iid == IID_IQuickActivate ? static_cast<IQuickActivate*>(this) : nullptr;
}

HRESULT QuickActivatePart::QuickActivate(QACONTAINER* container, QACONTROL* control)
{
    if (!container || !control)
        return E_POINTER;
    if (container->cbSize < sizeof(QACONTAINER) || control->cbSize < sizeof(QACONTROL))
        return E_INVALIDARG;
    auto* oleObject = m_object.FindPart<OleObjectPart>();
    auto* view = m_object.FindPart<ViewObjectPart>();
    if (!oleObject || !view)
        return E_UNEXPECTED;
    ComPtr<IUnknown> keepAlive(&m_object);
    HRESULT result = oleObject->SetClientSite(container->pClientSite);
    if (FAILED(result))
        return result;
    if (container->pAdviseSink)
        view->SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
    control->dwEventCookie = 0;
    control->dwPropNotifyCookie = 0;
    if (container->pUnkEventSink)
        m_object.Events().Advise(container->pUnkEventSink, &control->dwEventCookie);
    if (container->pPropertyNotifySink)
        m_object.PropertyNotifications().Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
    control->dwMiscStatus = m_object.Class().behaviour.miscStatus;
    control->dwViewStatus = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND;
    control->dwPointerActivationPolicy = 0;
    return S_OK;
}

HRESULT QuickActivatePart::SetContentExtent(LPSIZEL size)
{
    auto* oleObject = m_object.FindPart<OleObjectPart>();
    return oleObject ? oleObject->SetExtent(DVASPECT_CONTENT, size) : E_UNEXPECTED;
}

HRESULT QuickActivatePart::GetContentExtent(LPSIZEL size)
{
    auto* oleObject = m_object.FindPart<OleObjectPart>();
    return oleObject ? oleObject->GetExtent(DVASPECT_CONTENT, size) : E_UNEXPECTED;
}

} // namespace tolva::win32
