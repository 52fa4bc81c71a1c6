#pragma once
#include "core/string.h"
#include <cstddef>
#include <optional>
#include <string>

namespace tolva::host {

// A whole file as bytes: nullopt when it cannot be opened. At most limit + 1 bytes are read, so
// that the caller can tell a file that is too large.
std::optional<std::string> ReadTextFile(const String& path, size_t limit);

// Writes (replaces) the file; false when that fails.
bool WriteTextFile(const String& path, const std::string& text);

} // namespace tolva::host
