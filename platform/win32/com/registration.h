#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// Machine: HKEY_CLASSES_ROOT, as regsvr32 does. User: HKEY_CURRENT_USER\Software\Classes, for a
// user without administrator rights (DllInstall with "user").
enum class RegistrationScope { Machine, User };

// The classes (CLSID with InprocServer32, ProgIDs, Control, MiscStatus, TypeLib), the type
// library and its dispinterfaces. Both throw ComError.
namespace Registration {

void Register(RegistrationScope scope);
void Unregister(RegistrationScope scope);

} // namespace Registration

} // namespace tolva::win32
