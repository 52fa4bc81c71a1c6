// The binary persistence stream: every value at the ends of its type reads back as written, and
// the writer refuses, before it produces anything, whatever the reader would refuse.
#include "core/automation_error.h"
#include "core/property_stream_format.h"
#include <cfloat>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>

namespace tolva {
namespace {

constexpr int32_t StgCantSave = int32_t(0x80030103);

MemoryPropertyBag Bag(std::initializer_list<std::pair<String, Variant>> entries)
{
    MemoryPropertyBag bag;
    for (const auto& [key, value] : entries)
        bag.Set(key, value);
    return bag;
}

MemoryPropertyBag ReadBack(const std::vector<uint8_t>& bytes)
{
    std::span<const uint8_t> all(bytes);
    auto header = PropertyStream::DecodeHeader(all.first<PropertyStream::HeaderSize>());
    return PropertyStream::DecodePayload(header, all.subspan(PropertyStream::HeaderSize));
}

Font FontWith(double size, int16_t weight, int16_t charset)
{
    Font font;
    font.size = size;
    font.weight = weight;
    font.charset = charset;
    font.name = String(PropertyStream::MaxFontNameLength, u'N');
    return font;
}

TEST(PropertyStreamFormat, EveryValueAtTheEndsOfItsTypeReadsBackAsWritten)
{
    const MemoryPropertyBag bag = Bag({
        { u"Bool", Variant(true) },
        { u"Short", Variant(int16_t(SHRT_MIN)) },
        { u"Long", Variant(int32_t(INT_MIN)) },
        { u"Colour", Variant(uint32_t(0xFFFFFFFF)) },
        { u"Single", Variant(-FLT_MAX) },
        { u"Double", Variant(DBL_MAX) },
        { u"Currency", Variant(Currency::FromRaw(INT64_MIN)) },
        { u"Date", Variant(OleDate(2958465.99998843)) },
        { u"Text", Variant(String(u"&\xD800\0x", 4)) },
        // Fonts as odd as font objects report them: the reader takes whatever a font object holds.
        { u"Largest", Variant(FontWith(MaxKeptFontSize, 32767, 300)) },
        { u"Smallest", Variant(FontWith(0, -1, 32767)) },
        { u"Negative", Variant(FontWith(2049, SHRT_MIN, SHRT_MIN)) },
    });
    EXPECT_EQ(ReadBack(PropertyStream::Encode(bag)).Entries(), bag.Entries());
}

TEST(PropertyStreamFormat, TheWriterRefusesWhatTheReaderWouldRefuse)
{
    const String caption(PropertyStream::MaxPayload / 2 - 20, u'W'); // fits alone, just
    EXPECT_NO_THROW(PropertyStream::Encode(Bag({ { u"Caption", Variant(caption) } })));
    Font unnamed;
    unnamed.name = String(PropertyStream::MaxFontNameLength + 1, u'N');
    Font negative;
    negative.size = -1;
    const MemoryPropertyBag refused[] = {
        Bag({ { u"Caption", Variant(caption) }, { u"BackColor", Variant(int32_t(1)) } }), // past the cap together
        Bag({ { u"Caption", Variant(String(1 << 19, u'W')) } }),
        Bag({ { String(PropertyStream::MaxKeyLength + 1, u'K'), Variant(true) } }),
        Bag({ { u"Single", Variant(std::nanf("")) } }),
        Bag({ { u"Double", Variant(HUGE_VAL) } }),
        Bag({ { u"Date", Variant(OleDate(std::nan(""))) } }),
        Bag({ { u"Font", Variant(unnamed) } }),
        Bag({ { u"Font", Variant(negative) } }),
    };
    for (const MemoryPropertyBag& bag : refused) {
        try {
            PropertyStream::Encode(bag);
            ADD_FAILURE() << "saved " << ToUtf8(bag.Entries().back().first);
        } catch (const AutomationError& e) {
            EXPECT_EQ(e.HResult(), StgCantSave);
            EXPECT_EQ(e.Description().rfind(u"The control's properties cannot be saved to a stream: ", 0), 0u);
        }
    }
}

TEST(PropertyStreamFormat, AFontReadFromABagHasASizeTheStreamKeeps)
{
    // Found by the control-bag fuzzer: a denormal size was saved and read back as 0.
    for (double size : { 4.9406564584124654e-324, 8.123456, -3.0, 1e300, std::nan("") }) {
        Font font;
        font.size = size;
        const Font kept = Variant(font).ToFont();
        const MemoryPropertyBag bag = Bag({ { u"Font", Variant(kept) } });
        EXPECT_EQ(ReadBack(PropertyStream::Encode(bag)).Entries(), bag.Entries()) << size;
    }
}

} // namespace
} // namespace tolva
