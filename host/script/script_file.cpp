#include "host/script/script_file.h"
#include "platform/win32/windows_api.h"
#include <vector>

namespace tolva::win32 {

namespace {

// Script files are small; anything past this is not one.
constexpr DWORD MaxScriptBytes = 16u << 20;

std::wstring Decode(const char* bytes, int size, UINT codePage, DWORD flags)
{
    int length = MultiByteToWideChar(codePage, flags, bytes, size, nullptr, 0);
    std::wstring text(size_t(length > 0 ? length : 0), L'\0');
    if (length > 0)
        MultiByteToWideChar(codePage, flags, bytes, size, text.data(), length);
    return text;
}

} // namespace

std::optional<std::wstring> ReadScriptFile(const std::wstring& path)
{
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    LARGE_INTEGER size = {};
    std::vector<char> bytes;
    bool ok = GetFileSizeEx(file, &size) && size.QuadPart <= MaxScriptBytes;
    if (ok) {
        bytes.resize(size_t(size.QuadPart));
        DWORD read = 0;
        ok = bytes.empty()
            || (ReadFile(file, bytes.data(), DWORD(bytes.size()), &read, nullptr) && read == bytes.size());
    }
    CloseHandle(file);
    if (!ok)
        return std::nullopt;

    const auto* b = reinterpret_cast<const unsigned char*>(bytes.data());
    if (bytes.size() >= 2 && b[0] == 0xFF && b[1] == 0xFE)
        return std::wstring(reinterpret_cast<const wchar_t*>(bytes.data() + 2), (bytes.size() - 2) / 2);
    if (bytes.size() >= 3 && b[0] == 0xEF && b[1] == 0xBB && b[2] == 0xBF)
        return Decode(bytes.data() + 3, int(bytes.size() - 3), CP_UTF8, 0);
    if (bytes.empty())
        return std::wstring();
    std::wstring utf8 = Decode(bytes.data(), int(bytes.size()), CP_UTF8, MB_ERR_INVALID_CHARS);
    if (!utf8.empty())
        return utf8;
    return Decode(bytes.data(), int(bytes.size()), CP_ACP, 0);
}

} // namespace tolva::win32
