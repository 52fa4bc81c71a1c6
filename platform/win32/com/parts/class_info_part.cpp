#include "platform/win32/com/parts/class_info_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/type_library.h"

namespace tolva::win32 {

void* ClassInfoPart::Interface(REFIID iid)
{
    if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2)
        return static_cast<IProvideClassInfo2*>(this);
    return nullptr;
}

HRESULT ClassInfoPart::GetClassInfo(ITypeInfo** info)
{
    if (!info)
        return E_POINTER;
    *info = nullptr;
    return Guarded(IID_IProvideClassInfo, [&] {
        *info = TypeLibrary::InfoOf(*m_object.Class().clsid).Detach();
        return S_OK;
    });
}

HRESULT ClassInfoPart::GetGUID(DWORD kind, GUID* guid)
{
    if (!guid)
        return E_POINTER;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) {
        *guid = GUID_NULL;
        return E_INVALIDARG;
    }
    *guid = *m_object.Class().eventIid;
    return S_OK;
}

} // namespace tolva::win32
