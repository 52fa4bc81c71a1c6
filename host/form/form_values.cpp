#include "host/form/form_values.h"
#include "core/automation_error.h"
#include "host/form/extender_keys.h"
#include "host/form/form_syntax_error.h"
#include <cmath>

namespace tolva {

namespace {

constexpr float MaxClientTwips = 15 * 4096; // a window of 4096 pixels
constexpr float MaxPositionTwips = 1.0e6f;

float Number(const FormProperty& property, float bound, bool size)
{
    float value = 0;
    try {
        value = property.value.ToFloat();
    } catch (const AutomationError&) {
        throw FormSyntaxError(property.line, ToUtf8(property.key) + " must be a number");
    }
    if (!std::isfinite(value) || std::fabs(value) > bound || (size && value < 0))
        throw FormSyntaxError(property.line, ToUtf8(property.key) + " is out of range");
    return value;
}

bool Flag(const FormProperty& property)
{
    try {
        return property.value.ToBool();
    } catch (const AutomationError&) {
        throw FormSyntaxError(property.line, ToUtf8(property.key) + " must be True or False");
    }
}

OleColor Colour(const FormProperty& property)
{
    try {
        return property.value.ToColor();
    } catch (const AutomationError&) {
        throw FormSyntaxError(property.line, ToUtf8(property.key) + " must be a colour");
    }
}

} // namespace

FormValues ReadFormValues(const FormObject& form)
{
    FormValues values;
    values.caption = form.name;
    for (const FormProperty& property : form.properties) {
        const StringView key = property.key;
        if (SameIdentifier(key, u"Caption")) {
            if (!property.value.Holds<String>())
                throw FormSyntaxError(property.line, "Caption must be a text");
            values.caption = property.value.ToString();
        } else if (SameIdentifier(key, u"ClientWidth")) {
            values.clientWidth = Number(property, MaxClientTwips, true);
        } else if (SameIdentifier(key, u"ClientHeight")) {
            values.clientHeight = Number(property, MaxClientTwips, true);
        } else if (SameIdentifier(key, u"Font")) {
            if (!property.value.Holds<Font>())
                throw FormSyntaxError(property.line, "Font must be a BeginProperty Font group");
            values.font = property.value.ToFont();
        } else if (SameIdentifier(key, u"BackColor")) {
            values.backColor = Colour(property);
        } else if (SameIdentifier(key, u"ForeColor")) {
            values.foreColor = Colour(property);
        }
    }
    return values;
}

ExtenderValues ReadExtenderValues(const FormObject& control)
{
    ExtenderValues values;
    for (const FormProperty& property : control.properties) {
        const StringView key = property.key;
        if (SameIdentifier(key, u"Left"))
            values.left = Number(property, MaxPositionTwips, false);
        else if (SameIdentifier(key, u"Top"))
            values.top = Number(property, MaxPositionTwips, false);
        else if (SameIdentifier(key, u"Width"))
            values.width = Number(property, MaxPositionTwips, true);
        else if (SameIdentifier(key, u"Height"))
            values.height = Number(property, MaxPositionTwips, true);
        else if (SameIdentifier(key, u"Visible"))
            values.visible = Flag(property);
        else if (SameIdentifier(key, u"Default"))
            values.isDefault = Flag(property);
        else if (SameIdentifier(key, u"TabIndex"))
            values.tabIndex = int(Number(property, MaxPositionTwips, true));
        else if (SameIdentifier(key, u"Tag"))
            values.tag = property.value.ToString();
    }
    return values;
}

FormObject ControlProperties(const FormObject& control)
{
    FormObject values(control.type, control.name, control.line);
    for (const FormProperty& property : control.properties)
        if (!IsExtenderKey(property.key) && !IsDesignerKey(property.key))
            values.properties.push_back(property);
    return values;
}

} // namespace tolva
