#pragma once
#include "platform/win32/windows_api.h"
#include <string>
#include <utility>

namespace tolva::win32 {

// An open registry key, closed on destruction. Failures throw ComError.
class RegistryKey {
public:
    // Opens or creates root\path for writing.
    static RegistryKey Create(HKEY root, const std::wstring& path);

    RegistryKey(RegistryKey&& other) noexcept
        : m_key(std::exchange(other.m_key, nullptr))
    { }
    RegistryKey& operator=(RegistryKey&& other) noexcept
    {
        std::swap(m_key, other.m_key);
        return *this;
    }
    ~RegistryKey();

    HKEY Get() const { return m_key; }
    void SetString(const wchar_t* name, const std::wstring& value); // name null: the default value

private:
    explicit RegistryKey(HKEY key)
        : m_key(key)
    { }
    HKEY m_key;
};

// Deletes root\path with everything under it; a key that is not there is fine.
void DeleteRegistryTree(HKEY root, const std::wstring& path);

// Whether root\path has subkeys.
bool HasRegistrySubkeys(HKEY root, const std::wstring& path);

} // namespace tolva::win32
