#include "host/win32/text_file.h"
#include "host/win32/file_handle.h"

namespace tolva::host {

namespace {

FileHandle Open(const String& path, const wchar_t* mode)
{
    return FileHandle(_wfopen(reinterpret_cast<const wchar_t*>(path.c_str()), mode));
}

} // namespace

std::optional<std::string> ReadTextFile(const String& path, size_t limit)
{
    FileHandle file = Open(path, L"rb");
    if (!file)
        return std::nullopt;
    std::string text;
    char buffer[65536];
    size_t read = 0;
    while (text.size() <= limit && (read = fread(buffer, 1, sizeof buffer, file.get())) > 0)
        text.append(buffer, read);
    if (text.size() > limit + 1)
        text.resize(limit + 1);
    return text;
}

bool WriteTextFile(const String& path, const std::string& text)
{
    FileHandle file = Open(path, L"wb");
    return file && fwrite(text.data(), 1, text.size(), file.get()) == text.size() && fflush(file.get()) == 0;
}

} // namespace tolva::host
