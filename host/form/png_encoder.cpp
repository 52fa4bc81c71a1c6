#include "host/form/png_encoder.h"
#include <algorithm>
#include <array>
#include <stdexcept>

namespace tolva {

namespace {

uint32_t Crc32(const uint8_t* data, size_t size, uint32_t crc = 0)
{
    static const std::array<uint32_t, 256> table = [] {
        std::array<uint32_t, 256> t {};
        for (uint32_t n = 0; n < 256; ++n) {
            uint32_t c = n;
            for (int k = 0; k < 8; ++k)
                c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
            t[n] = c;
        }
        return t;
    }();
    crc = ~crc;
    for (size_t i = 0; i < size; ++i)
        crc = table[(crc ^ data[i]) & 0xFF] ^ (crc >> 8);
    return ~crc;
}

void PutBigEndian(std::string& out, uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        out += char((value >> shift) & 0xFF);
}

void PutChunk(std::string& out, const char* type, const std::string& data)
{
    PutBigEndian(out, uint32_t(data.size()));
    std::string body(type, 4);
    body += data;
    out += body;
    PutBigEndian(out, Crc32(reinterpret_cast<const uint8_t*>(body.data()), body.size()));
}

// A zlib stream of stored deflate blocks.
std::string Zlib(const std::string& raw)
{
    std::string out = "\x78\x01";
    constexpr size_t Block = 65535;
    size_t offset = 0;
    do {
        const size_t size = std::min(Block, raw.size() - offset);
        const bool last = offset + size == raw.size();
        out += char(last ? 1 : 0);
        out += char(size & 0xFF);
        out += char(size >> 8);
        out += char(~size & 0xFF);
        out += char((~size >> 8) & 0xFF);
        out.append(raw, offset, size);
        offset += size;
    } while (offset < raw.size());
    uint32_t a = 1, b = 0;
    for (unsigned char c : raw) {
        a = (a + c) % 65521;
        b = (b + a) % 65521;
    }
    PutBigEndian(out, (b << 16) | a);
    return out;
}

} // namespace

std::string EncodePng(int32_t width, int32_t height, const std::vector<uint32_t>& pixels)
{
    if (width <= 0 || height <= 0 || pixels.size() != size_t(width) * size_t(height))
        throw std::invalid_argument("the pixels do not make a width x height image");
    std::string raw;
    raw.reserve(size_t(height) * (size_t(width) * 3 + 1));
    for (int32_t y = 0; y < height; ++y) {
        raw += '\0'; // no filter
        for (int32_t x = 0; x < width; ++x) {
            const uint32_t p = pixels[size_t(y) * size_t(width) + size_t(x)];
            raw += char(p & 0xFF);
            raw += char((p >> 8) & 0xFF);
            raw += char((p >> 16) & 0xFF);
        }
    }
    std::string header;
    PutBigEndian(header, uint32_t(width));
    PutBigEndian(header, uint32_t(height));
    header.append("\x08\x02\x00\x00\x00", 5); // 8-bit RGB, deflate, no filter, no interlace
    std::string png = "\x89PNG\r\n\x1a\n";
    PutChunk(png, "IHDR", header);
    PutChunk(png, "IDAT", Zlib(raw));
    PutChunk(png, "IEND", "");
    return png;
}

} // namespace tolva
