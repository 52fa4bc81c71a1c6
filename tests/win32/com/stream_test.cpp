// IPersistStreamInit of TolvaCommand: round trips, and streams that are short, corrupt, hostile
// or of another version, which must leave the control exactly as it was.
#include "platform/win32/com/bstr.h"
#include "core/property_stream_format.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

ComPtr<IStream> StreamOf(const std::vector<uint8_t>& bytes)
{
    ComPtr<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, stream.Put());
    ULONG written = 0;
    if (!bytes.empty())
        stream->Write(bytes.data(), ULONG(bytes.size()), &written);
    LARGE_INTEGER start = {};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
    return stream;
}

std::vector<uint8_t> BytesOf(IStream* stream)
{
    STATSTG stat = {};
    stream->Stat(&stat, STATFLAG_NONAME);
    std::vector<uint8_t> bytes(size_t(stat.cbSize.QuadPart));
    LARGE_INTEGER start = {};
    stream->Seek(start, STREAM_SEEK_SET, nullptr);
    ULONG read = 0;
    if (!bytes.empty())
        stream->Read(bytes.data(), ULONG(bytes.size()), &read);
    return bytes;
}

template <class T> void Poke(std::vector<uint8_t>& bytes, size_t offset, T value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof(T));
}

class CommandStream : public testing::Test {
protected:
    void SetUp() override
    {
        Put(d, L"Caption", Text(L"Kept"));
        Put(d, L"BackColor", Long(0x123456));
        Put(d, L"Style", Long(1));
    }

    ComPtr<IPersistStreamInit> Persist(const CommandObject& c)
    {
        return c.As<IPersistStreamInit>(IID_IPersistStreamInit);
    }

    std::vector<uint8_t> Saved(const CommandObject& c)
    {
        ComPtr<IStream> stream = StreamOf({});
        EXPECT_EQ(Persist(c)->Save(stream.Get(), TRUE), S_OK);
        return BytesOf(stream.Get());
    }

    // Loading must fail and change nothing the control shows or saves.
    void ExpectRefused(const std::vector<uint8_t>& bytes, HRESULT expected = STG_E_DOCFILECORRUPT)
    {
        std::vector<uint8_t> before = Saved(command);
        EXPECT_EQ(Persist(command)->Load(StreamOf(bytes).Get()), expected);
        EXPECT_EQ(command.Control().Caption(), u"Kept");
        EXPECT_EQ(command.Control().BackColor(), 0x123456u);
        EXPECT_EQ(command.Control().Style(), 1);
        EXPECT_EQ(Saved(command), before);
    }

    // A well-formed stream of the given entries.
    static std::vector<uint8_t> Encoded(std::initializer_list<std::pair<const char16_t*, Variant>> entries)
    {
        MemoryPropertyBag bag;
        for (const auto& [key, value] : entries)
            bag.Set(key, value);
        return PropertyStream::Encode(bag);
    }

    CommandObject command;
    IDispatch* d = command.Dispatch();
};

// Every value coming back is the round trip's to show (round_trip_test.cpp); here, the bytes.
TEST_F(CommandStream, ALoadedControlSavesTheSameBytesInTheFormat)
{
    Put(d, L"MenuName", Text(L"mnuEdit"));
    std::vector<uint8_t> bytes = Saved(command);

    CommandObject loaded;
    ASSERT_EQ(Persist(loaded)->Load(StreamOf(bytes).Get()), S_OK);
    EXPECT_EQ(Saved(loaded), bytes);

    ULARGE_INTEGER size = {};
    ASSERT_EQ(Persist(command)->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, bytes.size());
    EXPECT_EQ(std::memcmp(bytes.data(), "TKPS", 4), 0);
}

TEST_F(CommandStream, AStreamHoldsOnlyWhatDiffersFromTheDefaults)
{
    CommandObject fresh;
    Put(fresh.Dispatch(), L"Caption", Text(L"Command"));
    std::vector<uint8_t> bytes = Saved(fresh);
    EXPECT_EQ(bytes.size(), PropertyStream::HeaderSize);
    CommandObject loaded;
    ASSERT_EQ(Persist(loaded)->Load(StreamOf(bytes).Get()), S_OK);
    EXPECT_EQ(loaded.Control().Caption(), u"Command");
}

TEST_F(CommandStream, ATruncatedStreamIsRefusedAtEveryLength)
{
    std::vector<uint8_t> bytes = Encoded({ { u"Caption", Variant(u"Other") }, { u"BackColor", Variant(int32_t(5)) } });
    for (size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        ExpectRefused(std::vector<uint8_t>(bytes.begin(), bytes.begin() + length));
    }
}

// Well-formed streams with one thing wrong, each with the error it is refused with.
TEST_F(CommandStream, CorruptOrForeignStreamsAreRefused)
{
    const std::vector<uint8_t> caption = Encoded({ { u"Caption", Variant(u"Other") } });
    const std::vector<uint8_t> style = Encoded({ { u"Style", Variant(int32_t(0)) } });
    const std::vector<uint8_t> number = Encoded({ { u"BackColor", Variant(1.5) } });
    // A font entry ends in its size (8 bytes), weight, charset (2 each) and flags (1).
    const std::vector<uint8_t> font = Encoded({ { u"Font", Variant(Font()) } });
    const auto poked = [](std::vector<uint8_t> bytes, size_t offset, auto value) {
        Poke(bytes, offset, value);
        return bytes;
    };
    std::vector<uint8_t> twice = caption;
    const size_t entry = caption.size() - PropertyStream::HeaderSize;
    twice.insert(twice.end(), caption.begin() + PropertyStream::HeaderSize, caption.end());
    Poke(twice, 8, uint32_t(2 * entry));
    Poke(twice, 12, 2u);

    const struct {
        const char* what;
        std::vector<uint8_t> bytes;
        HRESULT refusal = STG_E_DOCFILECORRUPT;
    } cases[] = {
        { "another signature", poked(caption, 0, uint8_t('X')) },
        { "a newer version", poked(caption, 4, uint16_t(PropertyStream::Version + 1)), STG_E_OLDDLL },
        { "an older version", poked(caption, 4, uint16_t(0)) },
        { "a huge size, not read on", poked(caption, 8, 0xFFFFFFFFu) },
        { "more entries than bytes", poked(caption, 12, 1000000u) },
        { "bytes left over after the entries", poked(caption, 12, 0u) },
        { "a text longer than the stream", poked(caption, PropertyStream::HeaderSize + 2 + 2 * 7 + 1, 0x7FFFFFFFu) },
        { "an unknown tag", poked(style, PropertyStream::HeaderSize + 2 + 2 * 5, uint8_t(0x7F)) },
        { "an empty key", poked(style, PropertyStream::HeaderSize, uint16_t(0)) },
        { "a number that is not finite", poked(number, number.size() - 8, std::nan("")) },
        { "a negative font size", poked(font, font.size() - 13, int64_t(-1)) },
        { "an unknown font flag", poked(font, font.size() - 1, uint8_t(0x80)) },
        { "the same key twice", twice },
        { "a font that is text", Encoded({ { u"BackColor", Variant(int32_t(9)) }, { u"Font", Variant(u"Arial") } }),
            HRESULT(0x800A000D) },
        { "a style that is text", Encoded({ { u"Style", Variant(u"menu") } }), HRESULT(0x800A000D) },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ExpectRefused(c.bytes, c.refusal);
    }
}

TEST_F(CommandStream, ARefusedStreamLeavesAnErrorObject)
{
    std::vector<uint8_t> bytes = Encoded({ { u"Caption", Variant(u"Other") } });
    bytes.resize(bytes.size() - 1);
    ASSERT_EQ(Persist(command)->Load(StreamOf(bytes).Get()), STG_E_DOCFILECORRUPT);
    auto support = command.As<ISupportErrorInfo>(IID_ISupportErrorInfo);
    EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID_IPersistStreamInit), S_OK);
    ComPtr<IErrorInfo> info;
    ASSERT_EQ(GetErrorInfo(0, info.Put()), S_OK);
    Bstr description;
    info->GetDescription(description.Put());
    EXPECT_EQ(FromBstr(description.Get()), u"The stream ends before the control's properties do");
}

TEST_F(CommandStream, ClassIdIsTheControls)
{
    CLSID clsid = {};
    ASSERT_EQ(Persist(command)->GetClassID(&clsid), S_OK);
    EXPECT_EQ(clsid, *TolvaCommandClass.clsid);
}

} // namespace
} // namespace tolva::win32::test
