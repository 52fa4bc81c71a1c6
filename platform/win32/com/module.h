#pragma once
#include "platform/win32/windows_api.h"
#include <string>

namespace tolva::win32 {

// The DLL's own state: its module handle and the counts that decide DllCanUnloadNow.
namespace Module {

// The handle DllMain received; the running program's when the code is linked into it.
HINSTANCE Handle();
void SetHandle(HINSTANCE module);
std::wstring Path(); // the full file name of the module

void LockServer(bool lock);
long ObjectCount();
long LockCount();
bool CanUnload(); // no live object and no lock

} // namespace Module

// A member of every COM object the module hands out: the module stays loaded while one lives.
class ModuleReference {
public:
    ModuleReference();
    ~ModuleReference();
    ModuleReference(const ModuleReference&);
    ModuleReference& operator=(const ModuleReference&) = default;
};

} // namespace tolva::win32
