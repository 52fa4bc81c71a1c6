#include "tests/gui/png_reader.h"
#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace tolva::win32::test {

namespace {

// Deflate (RFC 1951): stored, fixed and dynamic Huffman blocks.
class Inflater {
public:
    explicit Inflater(const std::string& data)
        : m_data(data)
    { }

    std::string Run()
    {
        bool last = false;
        while (!last) {
            last = Bits(1);
            const unsigned type = Bits(2);
            if (type == 0)
                Stored();
            else if (type == 1)
                Fixed();
            else if (type == 2)
                Dynamic();
            else
                throw std::runtime_error("bad block");
        }
        return m_out;
    }

private:
    struct Huffman {
        std::array<uint16_t, 16> counts {};
        std::vector<uint16_t> symbols;
    };

    unsigned Bits(int count)
    {
        unsigned value = 0;
        for (int i = 0; i < count; ++i) {
            if (m_position >= m_data.size() * 8)
                throw std::runtime_error("truncated");
            const unsigned bit = (uint8_t(m_data[m_position / 8]) >> (m_position % 8)) & 1;
            value |= bit << i;
            ++m_position;
        }
        return value;
    }

    static Huffman Build(const uint8_t* lengths, size_t count)
    {
        Huffman table;
        for (size_t i = 0; i < count; ++i)
            ++table.counts[lengths[i]];
        table.counts[0] = 0;
        std::array<uint16_t, 16> offsets {};
        for (int i = 1; i < 16; ++i)
            offsets[i] = uint16_t(offsets[i - 1] + table.counts[i - 1]);
        table.symbols.resize(count);
        for (size_t i = 0; i < count; ++i)
            if (lengths[i])
                table.symbols[offsets[lengths[i]]++] = uint16_t(i);
        return table;
    }

    int Decode(const Huffman& table)
    {
        int code = 0, first = 0, index = 0;
        for (int length = 1; length < 16; ++length) {
            code |= int(Bits(1));
            const int count = table.counts[length];
            if (code - count < first)
                return table.symbols[size_t(index + (code - first))];
            index += count;
            first = (first + count) << 1;
            code <<= 1;
        }
        throw std::runtime_error("bad code");
    }

    void Stored()
    {
        m_position = (m_position + 7) / 8 * 8;
        const unsigned length = Bits(16);
        Bits(16);
        for (unsigned i = 0; i < length; ++i)
            m_out += char(Bits(8));
    }

    void Codes(const Huffman& lengths, const Huffman& distances)
    {
        static constexpr uint16_t lengthBase[] = { 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 15, 17, 19, 23, 27, 31, 35, 43, 51,
            59, 67, 83, 99, 115, 131, 163, 195, 227, 258 };
        static constexpr uint8_t lengthExtra[]
            = { 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0 };
        static constexpr uint16_t distanceBase[] = { 1, 2, 3, 4, 5, 7, 9, 13, 17, 25, 33, 49, 65, 97, 129, 193, 257,
            385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577 };
        static constexpr uint8_t distanceExtra[]
            = { 0, 0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7, 7, 8, 8, 9, 9, 10, 10, 11, 11, 12, 12, 13, 13 };
        for (;;) {
            const int symbol = Decode(lengths);
            if (symbol < 256) {
                m_out += char(symbol);
                continue;
            }
            if (symbol == 256)
                return;
            const int l = symbol - 257;
            if (l >= 29)
                throw std::runtime_error("bad length");
            const size_t length = lengthBase[l] + Bits(lengthExtra[l]);
            const int d = Decode(distances);
            if (d >= 30)
                throw std::runtime_error("bad distance");
            const size_t distance = distanceBase[d] + Bits(distanceExtra[d]);
            if (distance > m_out.size())
                throw std::runtime_error("distance too far");
            for (size_t i = 0; i < length; ++i)
                m_out += m_out[m_out.size() - distance];
        }
    }

    void Fixed()
    {
        uint8_t lengths[288 + 30];
        for (int i = 0; i < 144; ++i)
            lengths[i] = 8;
        for (int i = 144; i < 256; ++i)
            lengths[i] = 9;
        for (int i = 256; i < 280; ++i)
            lengths[i] = 7;
        for (int i = 280; i < 288; ++i)
            lengths[i] = 8;
        for (int i = 0; i < 30; ++i)
            lengths[288 + i] = 5;
        Codes(Build(lengths, 288), Build(lengths + 288, 30));
    }

    void Dynamic()
    {
        const unsigned literals = Bits(5) + 257, distances = Bits(5) + 1, codeCount = Bits(4) + 4;
        static constexpr uint8_t order[19] = { 16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15 };
        uint8_t codeLengths[19] = {};
        for (unsigned i = 0; i < codeCount; ++i)
            codeLengths[order[i]] = uint8_t(Bits(3));
        const Huffman codes = Build(codeLengths, 19);
        std::vector<uint8_t> lengths;
        while (lengths.size() < literals + distances) {
            const int symbol = Decode(codes);
            if (symbol < 16) {
                lengths.push_back(uint8_t(symbol));
                continue;
            }
            uint8_t value = 0;
            unsigned repeat = 0;
            if (symbol == 16) {
                if (lengths.empty())
                    throw std::runtime_error("nothing to repeat");
                value = lengths.back();
                repeat = 3 + Bits(2);
            } else {
                repeat = symbol == 17 ? 3 + Bits(3) : 11 + Bits(7);
            }
            lengths.insert(lengths.end(), repeat, value);
        }
        Codes(Build(lengths.data(), literals), Build(lengths.data() + literals, distances));
    }

    const std::string& m_data;
    size_t m_position = 0;
    std::string m_out;
};

uint32_t BigEndian(const std::string& data, size_t at)
{
    return (uint32_t(uint8_t(data[at])) << 24) | (uint32_t(uint8_t(data[at + 1])) << 16)
        | (uint32_t(uint8_t(data[at + 2])) << 8) | uint32_t(uint8_t(data[at + 3]));
}

int Paeth(int a, int b, int c)
{
    const int p = a + b - c, pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    return pa <= pb && pa <= pc ? a : pb <= pc ? b : c;
}

} // namespace

std::optional<PngImage> ReadPng(const std::wstring& path)
{
    FILE* file = _wfopen(path.c_str(), L"rb");
    if (!file)
        return std::nullopt;
    std::string data;
    char buffer[65536];
    size_t read = 0;
    while ((read = fread(buffer, 1, sizeof buffer, file)) > 0)
        data.append(buffer, read);
    fclose(file);
    try {
        if (data.size() < 8 || data.compare(0, 8, "\x89PNG\r\n\x1a\n") != 0)
            return std::nullopt;
        PngImage image;
        int channels = 0;
        std::string compressed;
        for (size_t at = 8; at + 12 <= data.size();) {
            const uint32_t length = BigEndian(data, at);
            const std::string type = data.substr(at + 4, 4);
            if (at + 12 + length > data.size())
                return std::nullopt;
            if (type == "IHDR") {
                image.width = int(BigEndian(data, at + 8));
                image.height = int(BigEndian(data, at + 12));
                const int depth = uint8_t(data[at + 16]), colour = uint8_t(data[at + 17]);
                if (depth != 8 || (colour != 2 && colour != 6) || data[at + 20] != 0)
                    return std::nullopt;
                channels = colour == 2 ? 3 : 4;
            } else if (type == "IDAT") {
                compressed += data.substr(at + 8, length);
            }
            at += 12 + length;
        }
        if (!channels || image.width <= 0 || image.height <= 0 || compressed.size() < 6)
            return std::nullopt;
        const std::string deflated = compressed.substr(2); // the zlib header
        const std::string raw = Inflater(deflated).Run();
        const size_t stride = size_t(image.width) * size_t(channels);
        if (raw.size() < (stride + 1) * size_t(image.height))
            return std::nullopt;
        std::vector<uint8_t> previous(stride, 0), row(stride);
        for (int y = 0; y < image.height; ++y) {
            const size_t start = size_t(y) * (stride + 1);
            const int filter = uint8_t(raw[start]);
            for (size_t i = 0; i < stride; ++i) {
                const int x = uint8_t(raw[start + 1 + i]);
                const int a = i >= size_t(channels) ? row[i - size_t(channels)] : 0;
                const int b = previous[i];
                const int c = i >= size_t(channels) ? previous[i - size_t(channels)] : 0;
                const int predicted = filter == 1 ? a
                    : filter == 2                 ? b
                    : filter == 3                 ? (a + b) / 2
                    : filter == 4                 ? Paeth(a, b, c)
                                                  : 0;
                row[i] = uint8_t(x + predicted);
            }
            for (int x = 0; x < image.width; ++x) {
                const uint8_t* p = &row[size_t(x) * size_t(channels)];
                image.pixels.push_back(uint32_t(p[0]) | (uint32_t(p[1]) << 8) | (uint32_t(p[2]) << 16));
            }
            previous = row;
        }
        return image;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace tolva::win32::test
