// The exports of TolvaKit.dll: class objects, unloading, and self-registration.
#include "platform/win32/com/class_factory.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/module.h"
#include "platform/win32/com/registration.h"
#include "platform/win32/pages/page_classes.h"
#include <olectl.h>

using namespace tolva::win32;

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    // Thread notifications stay on: the statically linked runtime frees thread-local data there.
    if (reason == DLL_PROCESS_ATTACH)
        Module::SetHandle(module);
    return TRUE;
}

extern "C" HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    const ControlClass* controlClass = FindControlClass(clsid);
    const PageClass* pageClass = FindPageClass(clsid);
    if (!controlClass && !pageClass)
        return CLASS_E_CLASSNOTAVAILABLE;
    return Guarded(IID_IClassFactory, [&] {
        auto factory = ComPtr<ClassFactory>::Adopt(controlClass ? new ClassFactory(*controlClass)
                                                                : new ClassFactory(*pageClass));
        return factory->QueryInterface(iid, out);
    });
}

extern "C" HRESULT STDAPICALLTYPE DllCanUnloadNow()
{
    return Module::CanUnload() ? S_OK : S_FALSE;
}

namespace {

HRESULT Register(RegistrationScope scope)
{
    HRESULT hr = Guarded(IID_NULL, [scope] {
        Registration::Register(scope);
        return S_OK;
    });
    if (FAILED(hr))
        Guarded(IID_NULL, [scope] {
            Registration::Unregister(scope);
            return S_OK;
        });
    return FAILED(hr) ? SELFREG_E_CLASS : S_OK;
}

HRESULT Unregister(RegistrationScope scope)
{
    HRESULT hr = Guarded(IID_NULL, [scope] {
        Registration::Unregister(scope);
        return S_OK;
    });
    return FAILED(hr) ? SELFREG_E_CLASS : S_OK;
}

} // namespace

extern "C" HRESULT STDAPICALLTYPE DllRegisterServer()
{
    return Register(RegistrationScope::Machine);
}

extern "C" HRESULT STDAPICALLTYPE DllUnregisterServer()
{
    return Unregister(RegistrationScope::Machine);
}

// regsvr32 /n /i:user TolvaKit.dll registers for the current user only; /u with it unregisters.
extern "C" HRESULT STDAPICALLTYPE DllInstall(BOOL install, LPCWSTR commandLine)
{
    RegistrationScope scope = RegistrationScope::Machine;
    if (commandLine && CompareStringOrdinal(commandLine, -1, L"user", -1, TRUE) == CSTR_EQUAL)
        scope = RegistrationScope::User;
    return install ? Register(scope) : Unregister(scope);
}
