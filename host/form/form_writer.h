#pragma once
#include "host/form/form_object.h"
#include <string>

namespace tolva {

// Writes a form in the layout FormReader reads: "VERSION 5.00", then the blocks indented by three
// spaces per level, keys padded to sixteen columns, fonts as BeginProperty groups. Throws
// FormLiteralError for a value a form file cannot hold (a text with a line break, an empty value)
// and for a line longer than FormReader takes.
class FormWriter {
public:
    static std::string Write(const FormObject& form);
};

} // namespace tolva
