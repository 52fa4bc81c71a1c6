#pragma once
#include "core/memory_property_bag.h"

namespace tolva::win32 {

// Passes reads through to a source bag and keeps every value the source really holds (a key
// it lacks is left out, so that the reader's own default applies later).
class CapturingPropertyBag final : public PropertyBag {
public:
    explicit CapturingPropertyBag(PropertyBag& source)
        : m_source(source)
    { }

    Variant ReadProperty(StringView key, const Variant& defaultValue) override;
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue) override;

    MemoryPropertyBag& Captured() { return m_captured; }

private:
    PropertyBag& m_source;
    MemoryPropertyBag m_captured;
};

} // namespace tolva::win32
