#include "host/form/form_property_bag.h"

namespace tolva {

Variant FormPropertyBag::ReadProperty(StringView key, const Variant& defaultValue)
{
    const FormProperty* property = m_object.Find(key);
    return property ? property->value : defaultValue;
}

void FormPropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    if (value == defaultValue || value.IsEmpty())
        m_object.Remove(key);
    else
        m_object.Set(key, value);
}

} // namespace tolva
