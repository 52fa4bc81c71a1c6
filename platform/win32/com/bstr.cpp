#include "platform/win32/com/bstr.h"
#include <new>

namespace tolva::win32 {

Bstr::Bstr(StringView text)
    : m_value(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.data()), UINT(text.size())))
{
    if (!m_value)
        throw std::bad_alloc();
}

String FromBstr(const wchar_t* value)
{
    return String(ViewOfBstr(value));
}

StringView ViewOfBstr(const wchar_t* value)
{
    if (!value)
        return {};
    return StringView(reinterpret_cast<const char16_t*>(value), SysStringLen(const_cast<BSTR>(value)));
}

} // namespace tolva::win32
