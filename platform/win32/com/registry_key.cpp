#include "platform/win32/com/registry_key.h"
#include "platform/win32/com/com_error.h"

namespace tolva::win32 {

RegistryKey RegistryKey::Create(HKEY root, const std::wstring& path)
{
    HKEY key = nullptr;
    LSTATUS status
        = RegCreateKeyExW(root, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE, nullptr, &key, nullptr);
    if (status != ERROR_SUCCESS)
        throw ComError(HRESULT_FROM_WIN32(status));
    return RegistryKey(key);
}

RegistryKey::~RegistryKey()
{
    if (m_key)
        RegCloseKey(m_key);
}

void RegistryKey::SetString(const wchar_t* name, const std::wstring& value)
{
    LSTATUS status = RegSetValueExW(m_key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
        DWORD((value.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS)
        throw ComError(HRESULT_FROM_WIN32(status));
}

void DeleteRegistryTree(HKEY root, const std::wstring& path)
{
    LSTATUS status = RegDeleteTreeW(root, path.c_str());
    if (status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND)
        return;
    throw ComError(HRESULT_FROM_WIN32(status));
}

bool HasRegistrySubkeys(HKEY root, const std::wstring& path)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    DWORD subkeys = 0;
    LSTATUS status = RegQueryInfoKeyW(
        key, nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(key);
    return status == ERROR_SUCCESS && subkeys > 0;
}

} // namespace tolva::win32
