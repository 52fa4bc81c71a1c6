#pragma once
#include "tools/reference/library_description.h"
#include <oaidl.h>

namespace tolva::reference {

// Describes a type library: its creatable classes with their default and event interfaces,
// its enumerations and its aliases. Throws ComError when the library cannot be read.
LibraryDescription ReadTypeLibrary(ITypeLib* library);

} // namespace tolva::reference
