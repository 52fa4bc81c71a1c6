#include "platform/win32/com/module.h"

namespace tolva::win32 {

namespace {
HINSTANCE g_module = nullptr;
LONG g_objects = 0;
LONG g_locks = 0;
}

HINSTANCE Module::Handle()
{
    return g_module ? g_module : GetModuleHandleW(nullptr);
}

void Module::SetHandle(HINSTANCE module)
{
    g_module = module;
}

std::wstring Module::Path()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        DWORD length = GetModuleFileNameW(Handle(), path.data(), DWORD(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

void Module::LockServer(bool lock)
{
    if (lock)
        InterlockedIncrement(&g_locks);
    else
        InterlockedDecrement(&g_locks);
}

long Module::ObjectCount()
{
    return g_objects;
}
long Module::LockCount()
{
    return g_locks;
}
bool Module::CanUnload()
{
    return g_objects == 0 && g_locks == 0;
}

ModuleReference::ModuleReference()
{
    InterlockedIncrement(&g_objects);
}
ModuleReference::~ModuleReference()
{
    InterlockedDecrement(&g_objects);
}
ModuleReference::ModuleReference(const ModuleReference&)
{
    InterlockedIncrement(&g_objects);
}

} // namespace tolva::win32
