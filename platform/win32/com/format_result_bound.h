#pragma once
#include "core/string.h"
#include "platform/win32/windows_api.h"
#include <cstddef>
#include <oleauto.h>

namespace tolva::win32 {

// An upper bound of the length of what VarFormat gives for the value and the format expression
// in any locale: each character of a picture at its longest (a long date for "dddddd", a
// general date for "c"), plus the whole digits of a number with their separators; a named
// format at its longest.
size_t FormatResultBound(const VARIANT& value, StringView format);

} // namespace tolva::win32
