#include "platform/win32/com/parts/dispatch_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/member_dispatch.h"
#include "platform/win32/com/type_library.h"

namespace tolva::win32 {

void* DispatchPart::Interface(REFIID iid)
{
    if (iid == IID_IDispatch || iid == *m_object.Class().dispatchIid)
        return static_cast<IDispatch*>(this);
    return nullptr;
}

HRESULT DispatchPart::GetTypeInfoCount(UINT* count)
{
    if (!count)
        return E_POINTER;
    *count = 1;
    return S_OK;
}

HRESULT DispatchPart::GetTypeInfo(UINT index, LCID, ITypeInfo** info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    if (index != 0)
        return DISP_E_BADINDEX;
    return Guarded(IID_IDispatch, [&] {
        *info = TypeLibrary::InfoOf(*m_object.Class().dispatchIid).Detach();
        return S_OK;
    });
}

HRESULT DispatchPart::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    return MemberDispatch::IdsOfNames(m_object.Class().members, names, count, ids);
}

HRESULT DispatchPart::Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
    EXCEPINFO* exception, UINT* argumentError)
{
    if (iid != IID_NULL)
        return DISP_E_UNKNOWNINTERFACE;
    ComPtr<IUnknown> keepAlive(&m_object);
    return MemberDispatch::Invoke(m_object.Class().members, m_object, *m_object.Class().dispatchIid, id, flags, params,
        result, exception, argumentError);
}

} // namespace tolva::win32
