#include "tests/win32/dll/tolva_kit_dll.h"

namespace tolva::win32::test {

const CLSID TolvaCommandClsid = { 0xF1BDABE3, 0x6CC7, 0x454D, { 0xAE, 0xD8, 0x0C, 0x5E, 0xBA, 0x96, 0x12, 0xEB } };
const IID TolvaCommandDispatchIid = { 0x3912E17C, 0xD8EE, 0x44D9, { 0x9D, 0x88, 0x2F, 0xE6, 0x59, 0x8E, 0xBE, 0x54 } };
const IID TolvaCommandEventsIid = { 0xF4FBBC5A, 0xC753, 0x4805, { 0x9B, 0xD8, 0xB1, 0x07, 0x6D, 0x36, 0x7A, 0x0D } };
const GUID TolvaKitLibraryId = { 0x43F317B5, 0x36A3, 0x4FB2, { 0x92, 0x29, 0xCB, 0x4B, 0xE7, 0x36, 0xA5, 0xB5 } };

TolvaKitDll::TolvaKitDll()
    : m_module(LoadLibraryW(Path().c_str()))
{ }

TolvaKitDll::~TolvaKitDll()
{
    if (m_module)
        FreeLibrary(m_module);
}

std::wstring TolvaKitDll::Path()
{
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring path = program;
    return path.substr(0, path.find_last_of(L'\\') + 1) + L"TolvaKit.dll";
}

HRESULT TolvaKitDll::GetClassObject(REFCLSID clsid, REFIID iid, void** out) const
{
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    return Export<Function>("DllGetClassObject")(clsid, iid, out);
}

HRESULT TolvaKitDll::CanUnloadNow() const
{
    using Function = HRESULT(STDAPICALLTYPE*)();
    return Export<Function>("DllCanUnloadNow")();
}

HRESULT TolvaKitDll::RegisterServer() const
{
    using Function = HRESULT(STDAPICALLTYPE*)();
    return Export<Function>("DllRegisterServer")();
}

HRESULT TolvaKitDll::UnregisterServer() const
{
    using Function = HRESULT(STDAPICALLTYPE*)();
    return Export<Function>("DllUnregisterServer")();
}

HRESULT TolvaKitDll::Install(bool install, const wchar_t* commandLine) const
{
    using Function = HRESULT(STDAPICALLTYPE*)(BOOL, LPCWSTR);
    return Export<Function>("DllInstall")(install, commandLine);
}

std::wstring RegistryText(HKEY root, const std::wstring& key, const wchar_t* value)
{
    wchar_t text[1024] = {};
    DWORD size = sizeof(text);
    if (RegGetValueW(root, key.c_str(), value, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
        return L"";
    return text;
}

bool RegistryKeyExists(HKEY root, const std::wstring& key)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

std::wstring GuidText(REFGUID guid)
{
    wchar_t text[40] = {};
    StringFromGUID2(guid, text, 40);
    return text;
}

} // namespace tolva::win32::test
