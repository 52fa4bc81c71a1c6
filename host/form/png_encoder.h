#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace tolva {

// A PNG file of an 8-bit RGB image, rows top to bottom, pixels as 0x00BBGGRR. The data is stored
// without compression (deflate's stored blocks): simple, exact and fast enough for screenshots.
std::string EncodePng(int32_t width, int32_t height, const std::vector<uint32_t>& pixels);

} // namespace tolva
