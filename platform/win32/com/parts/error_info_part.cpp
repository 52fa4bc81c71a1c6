#include "platform/win32/com/parts/error_info_part.h"
#include <ocidl.h>

namespace tolva::win32 {

void* ErrorInfoPart::Interface(REFIID iid)
{
    return iid == IID_ISupportErrorInfo ? static_cast<ISupportErrorInfo*>(this) : nullptr;
}

HRESULT ErrorInfoPart::InterfaceSupportsErrorInfo(REFIID iid)
{
    bool supported = iid == IID_IDispatch || iid == *m_object.Class().dispatchIid || iid == IID_IPersistStreamInit
        || iid == IID_IPersistPropertyBag;
    return supported ? S_OK : S_FALSE;
}

} // namespace tolva::win32
