#pragma once
#include "core/property_bag.h"
#include "host/form/form_object.h"

namespace tolva {

// The property bag of one control of a form: reads come from the object's property lines, writes
// replace them. A value equal to its default is left out (and an earlier line of that key goes),
// so a saved form lists only what differs from the control's defaults.
class FormPropertyBag final : public PropertyBag {
public:
    explicit FormPropertyBag(FormObject& object)
        : m_object(object)
    { }

    Variant ReadProperty(StringView key, const Variant& defaultValue) override;
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue) override;

private:
    FormObject& m_object;
};

} // namespace tolva
