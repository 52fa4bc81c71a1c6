#pragma once
#include <optional>
#include <string>

namespace tolva::win32 {

// The text of a script file: UTF-16 with its byte-order mark, or UTF-8 (with or without one),
// or else the system's ANSI code page, as script hosts read them. Nothing when it cannot be read.
std::optional<std::wstring> ReadScriptFile(const std::wstring& path);

} // namespace tolva::win32
