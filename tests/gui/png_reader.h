#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tolva::win32::test {

// A PNG file (as the headless renderer and the form host write them), decoded to 0x00BBGGRR
// pixels, rows top to bottom. Nothing when the file cannot be read or decoded.
struct PngImage {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    uint32_t At(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
};

std::optional<PngImage> ReadPng(const std::wstring& path);

// The folder of tolva_render's pictures that TOLVA_HEADLESS_PICTURES names; empty when unset.
std::wstring HeadlessPictureFolder();

} // namespace tolva::win32::test
