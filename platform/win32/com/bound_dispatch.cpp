#include "platform/win32/com/bound_dispatch.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/member_dispatch.h"

namespace tolva::win32 {

void* BoundDispatch::Find(REFIID iid)
{
    return iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
}

HRESULT BoundDispatch::UnknownName(LPOLESTR, DISPID* id)
{
    *id = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

HRESULT BoundDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    const HRESULT hr = MemberDispatch::IdsOfNames(m_members, names, count, ids);
    if (hr == DISP_E_UNKNOWNNAME && count == 1)
        return UnknownName(names[0], ids);
    return hr;
}

HRESULT BoundDispatch::Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
    EXCEPINFO* exception, UINT* argumentError)
{
    if (iid != IID_NULL)
        return DISP_E_UNKNOWNINTERFACE;
    ComPtr<IUnknown> keepAlive(static_cast<IDispatch*>(this));
    return MemberDispatch::Invoke(m_members, *this, IID_IDispatch, id, flags, params, result, exception, argumentError);
}

} // namespace tolva::win32
