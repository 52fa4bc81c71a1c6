#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/ole_variant.h"
#include <utility>

namespace tolva::win32 {

namespace {

// The value converted to type; VARIANT_ALPHABOOL writes booleans as "True"/"False" as the
// languages do.
void Change(OleVariant& result, const VARIANT& value, VARTYPE type)
{
    ThrowIfFailed(VariantChangeType(result.Put(), const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, type));
}

} // namespace

bool ToBool(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_BOOL);
    return V_BOOL(&v.Get()) != VARIANT_FALSE;
}

int16_t ToInt16(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_I2);
    return V_I2(&v.Get());
}

int32_t ToInt32(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_I4);
    return V_I4(&v.Get());
}

float ToFloat(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_R4);
    return V_R4(&v.Get());
}

double ToDouble(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_R8);
    return V_R8(&v.Get());
}

Currency ToCurrency(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_CY);
    return Currency::FromRaw(V_CY(&v.Get()).int64);
}

OleDate ToDate(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_DATE);
    return OleDate(V_DATE(&v.Get()));
}

String ToText(const VARIANT& value)
{
    OleVariant v;
    Change(v, value, VT_BSTR);
    return FromBstr(V_BSTR(&v.Get()));
}

OleColor ToColor(const VARIANT& value)
{
    OleVariant v;
    HRESULT hr = VariantChangeType(v.Put(), const_cast<VARIANT*>(&value), 0, VT_I4);
    if (hr == DISP_E_OVERFLOW) {
        // Past the Long range: an unsigned value such as JScript's 0x8000000F.
        Change(v, value, VT_UI4);
        return OleColor(V_UI4(&v.Get()));
    }
    ThrowIfFailed(hr);
    return OleColor(V_I4(&v.Get()));
}

void PutBool(VARIANT& target, bool value)
{
    V_VT(&target) = VT_BOOL;
    V_BOOL(&target) = value ? VARIANT_TRUE : VARIANT_FALSE;
}

void PutInt16(VARIANT& target, int16_t value)
{
    V_VT(&target) = VT_I2;
    V_I2(&target) = value;
}

void PutInt32(VARIANT& target, int32_t value)
{
    V_VT(&target) = VT_I4;
    V_I4(&target) = value;
}

void PutColor(VARIANT& target, OleColor value)
{
    PutInt32(target, int32_t(value));
}

void PutFloat(VARIANT& target, float value)
{
    V_VT(&target) = VT_R4;
    V_R4(&target) = value;
}

void PutDouble(VARIANT& target, double value)
{
    V_VT(&target) = VT_R8;
    V_R8(&target) = value;
}

void PutCurrency(VARIANT& target, Currency value)
{
    V_VT(&target) = VT_CY;
    V_CY(&target).int64 = value.Raw();
}

void PutDate(VARIANT& target, OleDate value)
{
    V_VT(&target) = VT_DATE;
    V_DATE(&target) = value.Serial();
}

void PutText(VARIANT& target, StringView value)
{
    Bstr text(value);
    V_VT(&target) = VT_BSTR;
    V_BSTR(&target) = text.Detach();
}

bool IsMissing(const VARIANT& value)
{
    const VARIANT* v = V_VT(&value) == (VT_BYREF | VT_VARIANT) ? V_VARIANTREF(&value) : &value;
    return V_VT(v) == VT_ERROR && V_ERROR(v) == DISP_E_PARAMNOTFOUND;
}

void PutBack(const VARIANT& argument, const VARIANT& value)
{
    if (!(V_VT(&argument) & VT_BYREF))
        return;
    const VARTYPE type = VARTYPE(V_VT(&argument) & ~VT_BYREF);
    if (type == VT_VARIANT) {
        VariantCopy(V_VARIANTREF(&argument), const_cast<VARIANT*>(&value));
        return;
    }
    OleVariant converted;
    if (FAILED(VariantChangeType(converted.Put(), const_cast<VARIANT*>(&value), 0, type)))
        return;
    VARIANT& v = converted.Get();
    switch (type) {
    case VT_BSTR:
        SysFreeString(*V_BSTRREF(&argument));
        *V_BSTRREF(&argument) = std::exchange(V_BSTR(&v), nullptr);
        V_VT(&v) = VT_EMPTY;
        return;
    case VT_CY:
        *V_CYREF(&argument) = V_CY(&v);
        return;
    case VT_I2:
        *V_I2REF(&argument) = V_I2(&v);
        return;
    case VT_I4:
        *V_I4REF(&argument) = V_I4(&v);
        return;
    case VT_R4:
        *V_R4REF(&argument) = V_R4(&v);
        return;
    case VT_R8:
        *V_R8REF(&argument) = V_R8(&v);
        return;
    case VT_BOOL:
        *V_BOOLREF(&argument) = V_BOOL(&v);
        return;
    case VT_DATE:
        *V_DATEREF(&argument) = V_DATE(&v);
        return;
    default:
        return;
    }
}

} // namespace tolva::win32
