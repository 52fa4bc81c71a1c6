#pragma once
#include <cstdint>

namespace tolva {

// An OLE colour: an RGB value 0x00BBGGRR, or with the high bit set a system-colour index.
using OleColor = uint32_t;

// A colour as the drawing backends take it: always 0x00BBGGRR.
using ColorRef = uint32_t;

constexpr OleColor Rgb(uint8_t red, uint8_t green, uint8_t blue)
{
    return OleColor(red) | (OleColor(green) << 8) | (OleColor(blue) << 16);
}

constexpr uint8_t RedOf(ColorRef c) { return uint8_t(c & 0xFF); }
constexpr uint8_t GreenOf(ColorRef c) { return uint8_t((c >> 8) & 0xFF); }
constexpr uint8_t BlueOf(ColorRef c) { return uint8_t((c >> 16) & 0xFF); }

constexpr bool IsSystemColor(OleColor c) { return (c & 0x80000000u) != 0; }
constexpr int SystemColorIndex(OleColor c) { return int(c & 0xFF); }

namespace SystemColor {
constexpr OleColor Window = 0x80000005;
constexpr OleColor WindowText = 0x80000008;
constexpr OleColor Highlight = 0x8000000D;
constexpr OleColor HighlightText = 0x8000000E;
constexpr OleColor ButtonFace = 0x8000000F;
constexpr OleColor ButtonShadow = 0x80000010;
constexpr OleColor ButtonText = 0x80000012;
constexpr OleColor ButtonHighlight = 0x80000014;
constexpr OleColor DarkShadow3D = 0x80000015;
constexpr OleColor Light3D = 0x80000016;
}

} // namespace tolva
