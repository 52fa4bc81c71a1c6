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

TEST_F(CommandStream, AnotherSignatureOrVersionIsRefused)
{
    std::vector<uint8_t> bytes = Encoded({ { u"Caption", Variant(u"Other") } });
    std::vector<uint8_t> signature = bytes;
    signature[0] = 'X';
    ExpectRefused(signature);

    std::vector<uint8_t> newer = bytes;
    Poke<uint16_t>(newer, 4, PropertyStream::Version + 1);
    ExpectRefused(newer, STG_E_OLDDLL);

    std::vector<uint8_t> older = bytes;
    Poke<uint16_t>(older, 4, 0);
    ExpectRefused(older);
}

TEST_F(CommandStream, HugeOrInconsistentSizesAreRefusedWithoutReadingOn)
{
    std::vector<uint8_t> bytes = Encoded({ { u"Caption", Variant(u"Other") } });
    std::vector<uint8_t> huge = bytes;
    Poke<uint32_t>(huge, 8, 0xFFFFFFFFu);
    ExpectRefused(huge);

    std::vector<uint8_t> manyEntries = bytes;
    Poke<uint32_t>(manyEntries, 12, 1000000u);
    ExpectRefused(manyEntries);

    std::vector<uint8_t> fewerEntries = bytes;
    Poke<uint32_t>(fewerEntries, 12, 0u); // the entry's bytes are left over
    ExpectRefused(fewerEntries);

    // A text that claims to be longer than the stream.
    std::vector<uint8_t> longText = bytes;
    size_t textLength = PropertyStream::HeaderSize + 2 + 2 * 7 + 1;
    Poke<uint32_t>(longText, textLength, 0x7FFFFFFFu);
    ExpectRefused(longText);
}

TEST_F(CommandStream, MalformedValuesAreRefused)
{
    std::vector<uint8_t> bytes = Encoded({ { u"Style", Variant(int32_t(0)) } });
    const size_t tag = PropertyStream::HeaderSize + 2 + 2 * 5;
    std::vector<uint8_t> unknownTag = bytes;
    unknownTag[tag] = 0x7F;
    ExpectRefused(unknownTag);

    std::vector<uint8_t> emptyKey = bytes;
    Poke<uint16_t>(emptyKey, PropertyStream::HeaderSize, 0);
    ExpectRefused(emptyKey);

    std::vector<uint8_t> notFinite = Encoded({ { u"BackColor", Variant(1.5) } });
    Poke<double>(notFinite, notFinite.size() - 8, std::nan(""));
    ExpectRefused(notFinite);

    // A font entry ends in its size (8 bytes), weight, charset (2 each) and flags (1).
    const std::vector<uint8_t> font = Encoded({ { u"Font", Variant(Font()) } });
    std::vector<uint8_t> negativeSize = font;
    Poke<int64_t>(negativeSize, font.size() - 13, -1);
    ExpectRefused(negativeSize);
    std::vector<uint8_t> unknownFlag = font;
    Poke<uint8_t>(unknownFlag, font.size() - 1, 0x80);
    ExpectRefused(unknownFlag);
}

TEST_F(CommandStream, TheSameKeyTwiceIsRefused)
{
    std::vector<uint8_t> twice = Encoded({ { u"Caption", Variant(u"a") } });
    std::vector<uint8_t> entry(twice.begin() + PropertyStream::HeaderSize, twice.end());
    twice.insert(twice.end(), entry.begin(), entry.end());
    Poke<uint32_t>(twice, 8, uint32_t(2 * entry.size()));
    Poke<uint32_t>(twice, 12, 2u);
    ExpectRefused(twice);
}

TEST_F(CommandStream, WellFormedValuesOfTheWrongTypeAreRefused)
{
    ExpectRefused(
        Encoded({ { u"BackColor", Variant(int32_t(9)) }, { u"Font", Variant(u"Arial") } }), HRESULT(0x800A000D));
    ExpectRefused(Encoded({ { u"Style", Variant(u"menu") } }), HRESULT(0x800A000D));
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
