#include "host/script/script_error.h"
#include <cstdio>

namespace tolva::win32 {

std::wstring ScriptError::Format(const std::wstring& fileName) const
{
    wchar_t code16[16] = {};
    swprintf(code16, 16, L"%08lX", static_cast<unsigned long>(code));
    std::wstring text = fileName + L"(" + std::to_wstring(line) + L", " + std::to_wstring(column) + L") ";
    text += source.empty() ? std::wstring(L"Error") : source;
    text += L": " + (description.empty() ? std::wstring(L"error ") + code16 : description);
    return text;
}

} // namespace tolva::win32
