#pragma once
#include "core/variant.h"

namespace tolva {

// The host's property bag, as a control sees it while loading and saving.
class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    // The stored value, or defaultValue when the key is missing.
    virtual Variant ReadProperty(StringView key, const Variant& defaultValue) = 0;

    // Stores value; a bag may leave out a value equal to defaultValue.
    virtual void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue) = 0;
};

} // namespace tolva
