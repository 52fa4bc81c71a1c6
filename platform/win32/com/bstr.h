#pragma once
#include "core/string.h"
#include "platform/win32/windows_api.h"
#include <oleauto.h>
#include <string_view>
#include <utility>

namespace tolva::win32 {

// An owned BSTR, freed on destruction. Text crosses as UTF-16 code units unchanged.
class Bstr {
public:
    Bstr() = default;
    explicit Bstr(StringView text); // throws std::bad_alloc when the system allocator fails
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept
        : m_value(std::exchange(other.m_value, nullptr))
    { }
    Bstr& operator=(Bstr&& other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Bstr() { SysFreeString(m_value); }

    BSTR Get() const { return m_value; }
    BSTR* Put()
    {
        SysFreeString(std::exchange(m_value, nullptr));
        return &m_value;
    }
    BSTR Detach() { return std::exchange(m_value, nullptr); }

private:
    BSTR m_value = nullptr;
};

// The text of a BSTR (a null BSTR is the empty string), copied or where it is.
String FromBstr(const wchar_t* value);
StringView ViewOfBstr(const wchar_t* value);

inline const wchar_t* WidePointer(const String& text)
{
    return reinterpret_cast<const wchar_t*>(text.c_str());
}
inline String FromWide(std::wstring_view text)
{
    return String(text.begin(), text.end());
}
inline StringView ViewOf(const wchar_t* text)
{
    return StringView(reinterpret_cast<const char16_t*>(text));
}

} // namespace tolva::win32
