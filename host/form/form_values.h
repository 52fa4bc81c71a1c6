#pragma once
#include "core/font.h"
#include "core/ole_color.h"
#include "host/form/form_object.h"

namespace tolva {

// What a form host reads from a form file besides the controls' own properties, with the values
// it takes when a key is missing. Values it cannot take are refused with a FormSyntaxError that
// names the line.

// The keys of the form itself.
struct FormValues {
    String caption; // the form's name when there is none
    float clientWidth = 4680; // twips
    float clientHeight = 3195;
    Font font; // the controls' ambient font
    OleColor backColor = SystemColor::ButtonFace;
    OleColor foreColor = SystemColor::ButtonText;
};

FormValues ReadFormValues(const FormObject& form);

// The extender keys of a control block.
struct ExtenderValues {
    float left = 0; // twips
    float top = 0;
    float width = 1215; // a form designer's new button
    float height = 495;
    bool visible = true;
    bool isDefault = false; // the form's default button
    int tabIndex = 0;
    String tag;
};

ExtenderValues ReadExtenderValues(const FormObject& control);

// The lines of a control block that go to the control's property bag: neither the extender's
// keys nor a designer's bookkeeping.
FormObject ControlProperties(const FormObject& control);

} // namespace tolva
