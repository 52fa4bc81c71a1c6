#include "host/form/png_encoder.h"
#include <gtest/gtest.h>
#include <stdexcept>

namespace tolva {
namespace {

std::string Hex(const std::string& bytes)
{
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (unsigned char c : bytes) {
        text += digits[c >> 4];
        text += digits[c & 15];
    }
    return text;
}

TEST(PngEncoder, WritesAStandardFileOfTheImage)
{
    // Made independently with zlib: a red and an orange pixel.
    EXPECT_EQ(Hex(EncodePng(2, 1, { 0x0000FF, 0xFF8000 })),
        "89504e470d0a1a0a0000000d49484452000000020000000108020000007b40e8dd00000012494441547801010700f8ff00ff00"
        "000080ff0800027fd5706eaa0000000049454e44ae426082");
}

TEST(PngEncoder, SplitsLargeImagesIntoStoredBlocks)
{
    // 200 x 200 RGB rows exceed one 65535-byte block.
    const std::string png = EncodePng(200, 200, std::vector<uint32_t>(200 * 200, 0x123456));
    const size_t raw = 200 * (200 * 3 + 1);
    const size_t blocks = (raw + 65534) / 65535;
    EXPECT_EQ(png.size(), 8 + 25 + 12 + 2 + blocks * 5 + raw + 4 + 12);
}

TEST(PngEncoder, RefusesPixelsThatDoNotMakeTheImage)
{
    EXPECT_THROW(EncodePng(2, 2, { 1, 2, 3 }), std::invalid_argument);
    EXPECT_THROW(EncodePng(0, 1, {}), std::invalid_argument);
}

} // namespace
} // namespace tolva
