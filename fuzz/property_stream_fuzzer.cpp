// The binary persistence stream as a hostile file hands it over. Whatever the reader takes, the
// writer writes back byte for byte: the format has one spelling of every value.
#include "core/automation_error.h"
#include "core/property_stream_format.h"
#include "fuzz/fuzzed_values.h"
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    using namespace tolva;
    if (size < PropertyStream::HeaderSize)
        return 0;
    std::span<const uint8_t> all(bytes, size);
    tolva::MemoryPropertyBag bag;
    try {
        auto header = PropertyStream::DecodeHeader(all.first<PropertyStream::HeaderSize>());
        bag = PropertyStream::DecodePayload(header, all.subspan(PropertyStream::HeaderSize));
    } catch (const AutomationError&) {
        return 0;
    }
    std::vector<uint8_t> written;
    try {
        written = PropertyStream::Encode(bag);
    } catch (const AutomationError&) {
        fuzz::Fail("the writer refused what the reader took");
    }
    if (written.size() != size || std::memcmp(written.data(), bytes, size) != 0)
        fuzz::Fail("the writer wrote other bytes than the reader took");
    return 0;
}
