#pragma once
#include "core/font.h"
#include "platform/win32/windows_api.h"
#include <cstdint>
#include <ocidl.h>
#include <optional>
#include <span>
#include <string>

namespace tolva::win32 {

// The stream form of the standard font object (IPersistStream of CLSID_StdFont), which holds
// the description the font was given rather than the font it realised:
//   version u8 = 1 | charset i16 | flags u8 (2 italic, 4 underline, 8 strikethrough) |
//   weight i16 | size u32 (points x 10,000) | name length u8 | name in the ANSI code page
struct StdFontRecord {
    Font font; // the name decoded from the ANSI code page
    std::string ansiName; // the name as stored
};

// The record in bytes; empty when they are no record of version 1 (short, or a name running
// past the end). Bytes after the name are ignored.
std::optional<StdFontRecord> ParseStdFontStream(std::span<const uint8_t> bytes);

// The record a standard font object writes of itself; empty when the font is of another class
// or will not write one that parses.
std::optional<StdFontRecord> SaveStdFontStream(IFont* font);

// Text in the ANSI code page, as the standard font object stores its name (empty for text
// longer than the conversion takes).
std::string ToAnsi(StringView text);

} // namespace tolva::win32
