#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>

namespace tolva::win32 {

// The type library embedded in the module as resource TYPELIB 1. Not cached here: the system
// keeps loaded type libraries itself.
namespace TypeLibrary {

// Both throw ComError when the resource cannot be loaded or holds no such type.
ComPtr<ITypeLib> Get();
ComPtr<ITypeInfo> InfoOf(REFGUID guid);

} // namespace TypeLibrary

} // namespace tolva::win32
