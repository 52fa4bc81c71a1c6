#include "platform/win32/com/capturing_property_bag.h"

namespace tolva::win32 {

Variant CapturingPropertyBag::ReadProperty(StringView key, const Variant& defaultValue)
{
    // An empty default shows whether the source has the key.
    Variant value = m_source.ReadProperty(key, Variant());
    if (value.IsEmpty())
        return defaultValue;
    m_captured.Set(key, value);
    return value;
}

void CapturingPropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    m_source.WriteProperty(key, value, defaultValue);
}

} // namespace tolva::win32
