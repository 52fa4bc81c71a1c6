#include "platform/win32/com/type_library.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/module.h"

namespace tolva::win32 {

ComPtr<ITypeLib> TypeLibrary::Get()
{
    ComPtr<ITypeLib> library;
    ThrowIfFailed(LoadTypeLibEx(Module::Path().c_str(), REGKIND_NONE, library.Put()));
    return library;
}

ComPtr<ITypeInfo> TypeLibrary::InfoOf(REFGUID guid)
{
    ComPtr<ITypeInfo> info;
    ThrowIfFailed(Get()->GetTypeInfoOfGuid(guid, info.Put()));
    return info;
}

} // namespace tolva::win32
