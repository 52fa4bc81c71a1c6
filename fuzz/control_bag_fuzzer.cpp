// Loads every control from a property bag that answers each key with whatever the input says:
// a missing key, a read that fails, or a value of any type at its edges. A refused load is
// fine; a crash, a hang or a control that saves what it cannot load back is not.
#include "core/automation_error.h"
#include "core/memory_property_bag.h"
#include "core/property_stream_format.h"
#include "fuzz/fuzzed_values.h"
#include "fuzz/headless_controls.h"

namespace tolva::fuzz {

namespace {

constexpr int32_t TypeMismatch = int32_t(0x800A000D);

class FuzzedPropertyBag final : public PropertyBag {
public:
    explicit FuzzedPropertyBag(FuzzedDataProvider& data)
        : m_data(data)
    { }

    Variant ReadProperty(StringView, const Variant& defaultValue) override
    {
        switch (m_data.ConsumeIntegralInRange<int>(0, 3)) {
        case 0:
            return defaultValue; // the key is missing
        case 1:
            // What a COM bag's value of a type no control reads (an array, an object) becomes.
            throw AutomationError(TypeMismatch, u"TolvaKit", u"Type mismatch");
        default:
            return FuzzedValue(m_data);
        }
    }
    void WriteProperty(StringView, const Variant&, const Variant&) override { Fail("a load wrote to the bag"); }

private:
    FuzzedDataProvider& m_data;
};

bool SameEntries(const MemoryPropertyBag& a, const MemoryPropertyBag& b)
{
    if (a.Entries().size() != b.Entries().size())
        return false;
    for (size_t i = 0; i < a.Entries().size(); ++i)
        if (a.Entries()[i].first != b.Entries()[i].first || !SameValue(a.Entries()[i].second, b.Entries()[i].second))
            return false;
    return true;
}

MemoryPropertyBag Saved(HeadlessControl& control)
{
    MemoryPropertyBag bag;
    control.WriteProperties(bag);
    return bag;
}

// What a control saved, another of its class loads without complaint, and saves the same from
// then on. (One round trip may change what is saved: a label writes some colours with another
// default than it reads them with.)
void CheckRoundTrip(HeadlessControlFactory create, MemoryPropertyBag& saved)
{
    auto second = create();
    try {
        second->ReadProperties(saved);
    } catch (const AutomationError&) {
        Fail("a control refused the properties it saved");
    }
    MemoryPropertyBag again = Saved(*second);
    auto third = create();
    third->ReadProperties(again);
    if (!SameEntries(again, Saved(*third)))
        Fail("saving, loading and saving again changed the properties");
}

// The stream form takes what the bag held, or refuses it before writing; what it wrote reads back.
void CheckStream(const MemoryPropertyBag& saved)
{
    std::vector<uint8_t> bytes;
    try {
        bytes = PropertyStream::Encode(saved);
    } catch (const AutomationError&) {
        return;
    }
    MemoryPropertyBag read;
    try {
        std::span<const uint8_t> all(bytes);
        auto header = PropertyStream::DecodeHeader(all.first<PropertyStream::HeaderSize>());
        read = PropertyStream::DecodePayload(header, all.subspan(PropertyStream::HeaderSize));
    } catch (const AutomationError&) {
        Fail("the stream form refused what it wrote");
    }
    if (!SameEntries(saved, read))
        Fail("the stream form read back other values than it wrote");
}

} // namespace

} // namespace tolva::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    using namespace tolva;
    using namespace tolva::fuzz;
    FuzzedDataProvider data(bytes, size);
    auto controls = HeadlessControls();
    HeadlessControlFactory create = controls[data.ConsumeIntegralInRange<size_t>(0, controls.size() - 1)];
    const float width = float(data.ConsumeIntegralInRange<int>(0, 200)) * 15;
    const float height = float(data.ConsumeIntegralInRange<int>(0, 60)) * 15;

    auto control = create();
    FuzzedPropertyBag bag(data);
    try {
        control->ReadProperties(bag);
    } catch (const AutomationError&) {
        // Refused: the control carries on as it was.
    }
    try {
        control->Show(width, height);
    } catch (const AutomationError&) {
        // A paint may fail with the control's error (a list whose restored row count has no
        // rows); the window procedure takes it, as the DLL's does.
    }
    MemoryPropertyBag saved = Saved(*control);
    CheckStream(saved);
    CheckRoundTrip(create, saved);
    return 0;
}
