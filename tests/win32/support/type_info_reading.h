#pragma once
#include "platform/win32/windows_api.h"
#include <functional>
#include <map>
#include <oaidl.h>
#include <string>

namespace tolva::win32::test {

// What the tests read from the type library, each without leaking a description.

// The name of member id, or of the type itself for MEMBERID_NIL; empty when there is none.
std::wstring NameOf(ITypeInfo* info, MEMBERID id = MEMBERID_NIL);

// Calls visit with each function the type declares, in declaration order. The description
// lives only during the call.
void ForEachFunction(ITypeInfo* info, const std::function<void(const FUNCDESC&)>& visit);

// The members of an enumeration type and their values.
std::map<std::wstring, LONG> EnumerationValues(ITypeInfo* enumeration);

} // namespace tolva::win32::test
