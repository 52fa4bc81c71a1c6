#include "platform/win32/com/com_property_bag.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/com/variant_conversion.h"

namespace tolva::win32 {

Variant ComPropertyBag::ReadProperty(StringView key, const Variant& defaultValue)
{
    String name(key);
    OleVariant value; // VT_EMPTY: the value as the bag keeps it
    if (FAILED(m_bag->Read(reinterpret_cast<LPCOLESTR>(name.c_str()), value.Put(), m_log)))
        return defaultValue;
    return FromOleVariant(value.Get());
}

void ComPropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    if (value == defaultValue)
        return;
    String name(key);
    OleVariant stored;
    ToOleVariant(value, *stored.Put());
    ThrowIfFailed(m_bag->Write(reinterpret_cast<LPCOLESTR>(name.c_str()), &stored.Get()));
}

} // namespace tolva::win32
