#pragma once
#include "core/string.h"
#include "core/variant.h"
#include <stdexcept>
#include <string>
#include <string_view>

namespace tolva {

// A value text that is not one of the literals below; what() is the reason.
class FormLiteralError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

// The value part of a "Key = value" line (UTF-8), with any trailing 'comment:
//   "text" with "" for a quote         -> String
//   &H00CEDBDE& (1 to 8 hex digits)    -> 32-bit integer
//   -1 'True, 0 'False, True, False    -> Boolean (the comment says which integers are booleans)
//   120, -5                            -> 32-bit integer
//   8.25, 1E3                          -> Double
Variant ParseFormLiteral(std::string_view text);

// The text written after "Key = " for a value: colours (keys naming a Color) in the hex form,
// booleans with their 'True / 'False comment. A font is no literal (it is a property group), and
// neither is a string with a line break: both throw FormLiteralError.
std::string FormatFormLiteral(StringView key, const Variant& value);

} // namespace tolva
