#include "platform/win32/com/std_font_stream.h"
#include "platform/win32/com/com_ptr.h"
#include <algorithm>
#include <array>
#include <climits>

// In MinGW's libuuid but declared by none of its headers.
extern "C" const CLSID CLSID_StdFont;

namespace tolva::win32 {

namespace {

constexpr uint8_t RecordVersion = 1;
constexpr size_t FixedPartSize = 11; // version to name length
constexpr size_t MaxRecordSize = FixedPartSize + UCHAR_MAX;

enum Flags : uint8_t { Italic = 2, Underline = 4, Strikethrough = 8 };

class Reader {
public:
    explicit Reader(std::span<const uint8_t> bytes)
        : m_bytes(bytes)
    { }

    // Little-endian, as the font writes its fields.
    uint32_t Get(size_t size)
    {
        uint32_t value = 0;
        for (size_t i = 0; i < size; ++i)
            value |= uint32_t(m_bytes[m_at + i]) << (8 * i);
        m_at += size;
        return value;
    }
    std::span<const uint8_t> Take(size_t size)
    {
        std::span<const uint8_t> taken = m_bytes.subspan(m_at, size);
        m_at += size;
        return taken;
    }

private:
    std::span<const uint8_t> m_bytes;
    size_t m_at = 0;
};

String FromAnsi(const std::string& text)
{
    if (text.empty())
        return String();
    int length = MultiByteToWideChar(CP_ACP, 0, text.data(), int(text.size()), nullptr, 0);
    std::wstring wide(size_t(length > 0 ? length : 0), L'\0');
    if (length > 0)
        MultiByteToWideChar(CP_ACP, 0, text.data(), int(text.size()), wide.data(), length);
    return String(wide.begin(), wide.end());
}

} // namespace

std::optional<StdFontRecord> ParseStdFontStream(std::span<const uint8_t> bytes)
{
    if (bytes.size() < FixedPartSize || bytes[0] != RecordVersion)
        return std::nullopt;
    Reader in(bytes.subspan(1));
    StdFontRecord record;
    record.font.charset = int16_t(in.Get(2));
    const uint8_t flags = uint8_t(in.Get(1));
    record.font.italic = flags & Italic;
    record.font.underline = flags & Underline;
    record.font.strikethrough = flags & Strikethrough;
    record.font.weight = int16_t(in.Get(2));
    record.font.size = double(in.Get(4)) / 10000.0;
    const size_t nameLength = in.Get(1);
    if (bytes.size() < FixedPartSize + nameLength)
        return std::nullopt;
    std::span<const uint8_t> name = in.Take(nameLength);
    record.ansiName.assign(name.begin(), name.end());
    record.font.name = FromAnsi(record.ansiName);
    return record;
}

std::optional<StdFontRecord> SaveStdFontStream(IFont* font)
{
    // Another class of font may write a stream of its own making.
    auto persist = ComPtr<IFont>(font).As<IPersistStream>(IID_IPersistStream);
    CLSID clsid = {};
    if (!persist || FAILED(persist->GetClassID(&clsid)) || clsid != CLSID_StdFont)
        return std::nullopt;
    ComPtr<IStream> stream;
    if (FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put())) || FAILED(persist->Save(stream.Get(), FALSE)))
        return std::nullopt;
    std::array<uint8_t, MaxRecordSize> buffer = {};
    ULONG read = 0;
    const LARGE_INTEGER start = {};
    if (FAILED(stream->Seek(start, STREAM_SEEK_SET, nullptr))
        || FAILED(stream->Read(buffer.data(), ULONG(buffer.size()), &read)))
        return std::nullopt;
    return ParseStdFontStream(std::span<const uint8_t>(buffer.data(), std::min<size_t>(read, buffer.size())));
}

std::string ToAnsi(StringView text)
{
    if (text.empty() || text.size() > size_t(INT_MAX))
        return std::string();
    const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
    int length = WideCharToMultiByte(CP_ACP, 0, wide, int(text.size()), nullptr, 0, nullptr, nullptr);
    std::string result(size_t(length > 0 ? length : 0), '\0');
    if (length > 0)
        WideCharToMultiByte(CP_ACP, 0, wide, int(text.size()), result.data(), length, nullptr, nullptr);
    return result;
}

} // namespace tolva::win32
