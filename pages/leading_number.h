#pragma once
#include "core/string.h"

namespace tolva {

// The number a text starts with, as the language's Val reads it: leading blanks, a sign, digits
// with one decimal point and an exponent; whatever follows is ignored, and a text that does not
// start with a number is 0.
double LeadingNumber(StringView text);

} // namespace tolva
