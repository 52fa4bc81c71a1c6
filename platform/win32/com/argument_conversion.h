#pragma once
#include "core/currency.h"
#include "core/ole_color.h"
#include "core/ole_date.h"
#include "core/string.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/windows_api.h"
#include <cstdint>
#include <oleauto.h>

namespace tolva::win32 {

// Values arriving through Invoke, coerced as the calling languages coerce them (VariantChangeType
// on the PlainArgument: "12" and 12.0 are numbers, True is -1, an object gives its default value). A value that does
// not convert throws ComError with DISP_E_TYPEMISMATCH or DISP_E_OVERFLOW.
bool ToBool(const VARIANT& value);
int16_t ToInt16(const VARIANT& value);
int32_t ToInt32(const VARIANT& value);
float ToFloat(const VARIANT& value);
double ToDouble(const VARIANT& value);
Currency ToCurrency(const VARIANT& value);
OleDate ToDate(const VARIANT& value);
String ToText(const VARIANT& value);

// A colour: any 32-bit pattern. VB hands &H8000000F over as a negative Long, JScript as the
// positive double 2147483663; both mean the same colour.
OleColor ToColor(const VARIANT& value);

// Results handed back through Invoke. The target must be empty (VariantInit). Colours go out
// as Long, the type VB and the script engines handle best.
void PutBool(VARIANT& target, bool value);
void PutInt16(VARIANT& target, int16_t value);
void PutInt32(VARIANT& target, int32_t value);
void PutColor(VARIANT& target, OleColor value);
void PutFloat(VARIANT& target, float value);
void PutDouble(VARIANT& target, double value);
void PutCurrency(VARIANT& target, Currency value);
void PutDate(VARIANT& target, OleDate value);
void PutText(VARIANT& target, StringView value);

// The value an argument stands for: what a VT_BYREF|VT_VARIANT refers to, or the argument
// itself. A by-reference value without its reference, or a reference to another reference,
// throws ComError with DISP_E_TYPEMISMATCH.
const VARIANT& Referenced(const VARIANT& value);

// Whether an argument (after Referenced) is the plain value it stands for: neither a reference
// nor an object, so that PlainArgument would only copy it.
bool IsPlainValue(const VARIANT& value);

// The plain value an argument stands for, copied into result: what a reference refers to, and
// an object reduced to its default value, followed at most 8 objects deep (an object whose
// default value is itself would otherwise recurse the conversion to death). Every conversion of
// an argument goes through here. An object without a default value, or nested deeper, throws
// ComError with DISP_E_TYPEMISMATCH, as Referenced does.
void PlainArgument(OleVariant& result, const VARIANT& value);

// True for an omitted optional argument (VT_ERROR holding DISP_E_PARAMNOTFOUND).
bool IsMissing(const VARIANT& value);

// Stores value into the caller's variable behind a by-reference argument, converted to the
// variable's type (a variant variable takes it as it is). An argument passed by value, or a
// variable the value does not convert to, is left alone.
void PutBack(const VARIANT& argument, const VARIANT& value);

} // namespace tolva::win32
