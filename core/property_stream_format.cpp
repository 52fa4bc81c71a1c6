#include "core/property_stream_format.h"
#include "core/automation_error.h"
#include <bit>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace tolva {

namespace {

static_assert(std::endian::native == std::endian::little, "the stream is written in memory order");

constexpr uint8_t Signature[4] = { 'T', 'K', 'P', 'S' };
constexpr int32_t StgOldDll = int32_t(0x80030105); // STG_E_OLDDLL
constexpr int32_t StgDocfileCorrupt = int32_t(0x80030109); // STG_E_DOCFILECORRUPT
constexpr int32_t StgCantSave = int32_t(0x80030103); // STG_E_CANTSAVE
constexpr int64_t MaxFontSizeUnits = int64_t(UINT32_MAX); // MaxKeptFontSize in points x 10,000

enum class Tag : uint8_t { Bool = 1, Int16, Int32, Float, Double, Currency, Date, Text, Font };

enum FontFlags : uint8_t { Italic = 1, Underline = 2, Strikethrough = 4 };

[[noreturn]] void Corrupt()
{
    throw AutomationError(StgDocfileCorrupt, u"TolvaKit", u"The stream does not hold valid control properties");
}

// What the writer cannot put into a stream that the reader would take back. The writer checks
// before anything is written, with the same bounds the reader keeps, so that whatever is saved
// loads again.
[[noreturn]] void CannotSave(StringView what)
{
    throw AutomationError(
        StgCantSave, u"TolvaKit", u"The control's properties cannot be saved to a stream: " + String(what));
}

bool FontSizeFits(int64_t size)
{
    return size >= 0 && size <= MaxFontSizeUnits;
}

class Writer {
public:
    template <class T> void Put(T value)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        size_t end = m_bytes.size();
        m_bytes.resize(end + sizeof(T));
        std::memcpy(m_bytes.data() + end, &value, sizeof(T));
    }
    void PutText16(StringView text) // u16 length, at most 65535 units (the caller's bound)
    {
        Put(uint16_t(text.size()));
        PutUnits(text);
    }
    void PutText32(StringView text) // u32 length
    {
        Put(uint32_t(text.size()));
        PutUnits(text);
    }
    std::vector<uint8_t>& Bytes() { return m_bytes; }

private:
    void PutUnits(StringView text)
    {
        for (char16_t unit : text)
            Put(uint16_t(unit));
    }
    std::vector<uint8_t> m_bytes;
};

class Reader {
public:
    explicit Reader(std::span<const uint8_t> bytes)
        : m_bytes(bytes)
    { }

    template <class T> T Get()
    {
        if (m_bytes.size() - m_position < sizeof(T))
            Corrupt();
        T value;
        std::memcpy(&value, m_bytes.data() + m_position, sizeof(T));
        m_position += sizeof(T);
        return value;
    }
    String GetUnits(size_t length)
    {
        if ((m_bytes.size() - m_position) / 2 < length)
            Corrupt();
        String text(length, u'\0');
        for (char16_t& unit : text)
            unit = char16_t(Get<uint16_t>());
        return text;
    }
    double GetFinite()
    {
        double value = Get<double>();
        if (!std::isfinite(value))
            Corrupt();
        return value;
    }
    bool AtEnd() const { return m_position == m_bytes.size(); }

private:
    std::span<const uint8_t> m_bytes;
    size_t m_position = 0;
};

void PutValue(Writer& out, const Variant& value)
{
    std::visit(
        [&out](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>) {
                // An empty value is the absence of the key: the caller leaves it out.
            } else if constexpr (std::is_same_v<T, bool>) {
                out.Put(Tag::Bool);
                out.Put(uint8_t(v ? 1 : 0));
            } else if constexpr (std::is_same_v<T, int16_t>) {
                out.Put(Tag::Int16);
                out.Put(v);
            } else if constexpr (std::is_same_v<T, int32_t>) {
                out.Put(Tag::Int32);
                out.Put(v);
            } else if constexpr (std::is_same_v<T, float>) {
                if (!std::isfinite(v))
                    CannotSave(u"a number is not finite");
                out.Put(Tag::Float);
                out.Put(v);
            } else if constexpr (std::is_same_v<T, double>) {
                if (!std::isfinite(v))
                    CannotSave(u"a number is not finite");
                out.Put(Tag::Double);
                out.Put(v);
            } else if constexpr (std::is_same_v<T, Currency>) {
                out.Put(Tag::Currency);
                out.Put(v.Raw());
            } else if constexpr (std::is_same_v<T, OleDate>) {
                if (!std::isfinite(v.Serial()))
                    CannotSave(u"a date is not finite");
                out.Put(Tag::Date);
                out.Put(v.Serial());
            } else if constexpr (std::is_same_v<T, String>) {
                out.Put(Tag::Text);
                out.PutText32(v);
            } else {
                static_assert(std::is_same_v<T, Font>);
                if (v.name.size() > PropertyStream::MaxFontNameLength)
                    CannotSave(u"the font name is longer than 256 characters");
                // Compared before rounding: a size past the 64 bits must not reach llround.
                if (!(v.size >= 0 && v.size * 10000.0 <= double(MaxFontSizeUnits)))
                    CannotSave(u"the font size is negative or larger than 429,496 points");
                out.Put(Tag::Font);
                out.PutText16(v.name);
                out.Put(int64_t(std::llround(v.size * 10000.0)));
                out.Put(v.weight);
                out.Put(v.charset);
                out.Put(uint8_t(
                    (v.italic ? Italic : 0) | (v.underline ? Underline : 0) | (v.strikethrough ? Strikethrough : 0)));
            }
        },
        value.Value());
}

Variant GetValue(Reader& in)
{
    switch (in.Get<Tag>()) {
    case Tag::Bool: {
        uint8_t b = in.Get<uint8_t>();
        if (b > 1)
            Corrupt();
        return Variant(b == 1);
    }
    case Tag::Int16:
        return Variant(in.Get<int16_t>());
    case Tag::Int32:
        return Variant(in.Get<int32_t>());
    case Tag::Float: {
        float f = in.Get<float>();
        if (!std::isfinite(f))
            Corrupt();
        return Variant(f);
    }
    case Tag::Double:
        return Variant(in.GetFinite());
    case Tag::Currency:
        return Variant(Currency::FromRaw(in.Get<int64_t>()));
    case Tag::Date:
        return Variant(OleDate(in.GetFinite()));
    case Tag::Text:
        return Variant(in.GetUnits(in.Get<uint32_t>()));
    case Tag::Font: {
        Font font;
        uint16_t nameLength = in.Get<uint16_t>();
        if (nameLength > PropertyStream::MaxFontNameLength)
            Corrupt();
        font.name = in.GetUnits(nameLength);
        int64_t size = in.Get<int64_t>();
        if (!FontSizeFits(size))
            Corrupt();
        font.size = double(size) / 10000.0;
        // Weight and charset are whatever 16 bits a font object holds.
        font.weight = in.Get<int16_t>();
        font.charset = in.Get<int16_t>();
        uint8_t flags = in.Get<uint8_t>();
        if (flags & ~(Italic | Underline | Strikethrough))
            Corrupt();
        font.italic = flags & Italic;
        font.underline = flags & Underline;
        font.strikethrough = flags & Strikethrough;
        return Variant(std::move(font));
    }
    }
    Corrupt();
}

} // namespace

std::vector<uint8_t> PropertyStream::Encode(const MemoryPropertyBag& bag)
{
    Writer out;
    for (uint8_t b : Signature)
        out.Put(b);
    out.Put(Version);
    out.Put(uint16_t(HeaderSize));
    out.Put(uint32_t(0)); // payload size and entry count, filled in below
    out.Put(uint32_t(0));
    uint32_t entries = 0;
    for (const auto& [key, value] : bag.Entries()) {
        if (value.IsEmpty())
            continue;
        if (key.empty() || key.size() > MaxKeyLength)
            CannotSave(u"a key is empty or longer than 256 characters");
        if (++entries > MaxEntries)
            CannotSave(u"there are more than 4096 of them");
        out.PutText16(key);
        PutValue(out, value);
        if (out.Bytes().size() - HeaderSize > MaxPayload)
            CannotSave(u"they take more than 1 MiB");
    }
    std::vector<uint8_t> bytes = std::move(out.Bytes());
    const auto payloadSize = uint32_t(bytes.size() - HeaderSize);
    std::memcpy(bytes.data() + 8, &payloadSize, sizeof(payloadSize));
    std::memcpy(bytes.data() + 12, &entries, sizeof(entries));
    return bytes;
}

PropertyStream::Header PropertyStream::DecodeHeader(std::span<const uint8_t, HeaderSize> bytes)
{
    Reader in(bytes);
    for (uint8_t expected : Signature)
        if (in.Get<uint8_t>() != expected)
            Corrupt();
    uint16_t version = in.Get<uint16_t>();
    if (version > Version)
        throw AutomationError(StgOldDll, u"TolvaKit", u"The stream was written by a newer version of TolvaKit");
    if (version != Version || in.Get<uint16_t>() != HeaderSize)
        Corrupt();
    Header header;
    header.payloadSize = in.Get<uint32_t>();
    header.entries = in.Get<uint32_t>();
    // The smallest entry is a one-character key with a bool: 6 bytes.
    if (header.payloadSize > MaxPayload || header.entries > MaxEntries || header.entries > header.payloadSize / 6)
        Corrupt();
    return header;
}

MemoryPropertyBag PropertyStream::DecodePayload(const Header& header, std::span<const uint8_t> payload)
{
    if (payload.size() != header.payloadSize)
        Corrupt();
    Reader in(payload);
    MemoryPropertyBag bag;
    for (uint32_t i = 0; i < header.entries; ++i) {
        uint16_t keyLength = in.Get<uint16_t>();
        if (keyLength == 0 || keyLength > MaxKeyLength)
            Corrupt();
        String key = in.GetUnits(keyLength);
        if (bag.Find(key))
            Corrupt();
        bag.Set(key, GetValue(in));
    }
    if (!in.AtEnd())
        Corrupt();
    return bag;
}

} // namespace tolva
