#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tolva::win32::test {

// An 8-bit RGB or RGBA PNG file (as the headless renderer writes them), decoded to 0x00BBGGRR
// pixels, rows top to bottom. Nothing when the file cannot be read or is of another kind.
struct PngImage {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    uint32_t At(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
};

std::optional<PngImage> ReadPng(const std::wstring& path);

} // namespace tolva::win32::test
