#include "platform/win32/com/parts/object_safety_part.h"

namespace tolva::win32 {

namespace {
constexpr DWORD Supported = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;
}

void* ObjectSafetyPart::Interface(REFIID iid)
{
    return iid == IID_IObjectSafety ? static_cast<IObjectSafety*>(this) : nullptr;
}

bool ObjectSafetyPart::Covers(REFIID iid) const
{
    return iid == IID_IDispatch || iid == *m_object.Class().dispatchIid || iid == IID_IPersistPropertyBag
        || iid == IID_IPersistStreamInit;
}

HRESULT ObjectSafetyPart::GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled)
{
    if (!supported || !enabled)
        return E_POINTER;
    if (!Covers(iid)) {
        *supported = *enabled = 0;
        return E_NOINTERFACE;
    }
    *supported = Supported;
    *enabled = m_enabled;
    return S_OK;
}

HRESULT ObjectSafetyPart::SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled)
{
    if (!Covers(iid))
        return E_NOINTERFACE;
    if (mask & ~Supported)
        return E_FAIL;
    m_enabled = (m_enabled & ~mask) | (enabled & mask);
    return S_OK;
}

} // namespace tolva::win32
