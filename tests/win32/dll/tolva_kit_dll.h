#pragma once
#include "platform/win32/windows_api.h"
#include <objbase.h>
#include <string>

namespace tolva::win32::test {

// TolvaKit.dll as a client process meets it: loaded from beside the test program, its exports
// called directly.
class TolvaKitDll {
public:
    TolvaKitDll();
    ~TolvaKitDll();
    TolvaKitDll(const TolvaKitDll&) = delete;
    TolvaKitDll& operator=(const TolvaKitDll&) = delete;

    static std::wstring Path();

    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) const;
    HRESULT CanUnloadNow() const;
    HRESULT RegisterServer() const;
    HRESULT UnregisterServer() const;
    HRESULT Install(bool install, const wchar_t* commandLine) const;

private:
    template <class F> F Export(const char* name) const
    {
        return reinterpret_cast<F>(reinterpret_cast<void*>(GetProcAddress(m_module, name)));
    }

    HMODULE m_module;
};

// The published GUIDs, as a client knows them.
extern const CLSID TolvaCommandClsid;
extern const IID TolvaCommandDispatchIid;
extern const IID TolvaCommandEventsIid;
extern const GUID TolvaKitLibraryId;

// A registry value as text, empty when the key or value is missing.
std::wstring RegistryText(HKEY root, const std::wstring& key, const wchar_t* value = nullptr);
bool RegistryKeyExists(HKEY root, const std::wstring& key);
std::wstring GuidText(REFGUID guid);

} // namespace tolva::win32::test
