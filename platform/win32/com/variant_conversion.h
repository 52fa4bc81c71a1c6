#pragma once
#include "core/variant.h"
#include "platform/win32/windows_api.h"
#include <oleauto.h>

namespace tolva::win32 {

// The core's value as a VARIANT, for property bags: a font becomes a new standard font object.
// The target must be empty (VariantInit).
void ToOleVariant(const Variant& value, VARIANT& target);

// An argument that is declared VARIANT, as the core's value: the PlainArgument it stands for
// (an object gives its default value, as for every argument). Null or any other kind the core
// has no value for is refused (DISP_E_TYPEMISMATCH).
Variant ArgumentVariant(const VARIANT& value);

// A VARIANT from a property bag as the core's value. Unsigned and other integer types become the
// nearest signed type (an unsigned 32-bit colour keeps its bits); an object becomes a font when
// it is one. Anything else throws the TypeMismatch run-time error.
Variant FromOleVariant(const VARIANT& value);

} // namespace tolva::win32
