#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/ole_variant.h"
#include <utility>

namespace tolva::win32 {

namespace {

// How many default values deep an object argument is followed. A client object whose default
// value is itself (or a longer cycle) would otherwise recurse the conversion to death.
constexpr int MaxObjectDepth = 8;

bool IsObjectType(VARTYPE type)
{
    type &= ~VT_BYREF;
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

// value converted to type with flags, from the plain value it stands for: VariantChangeType
// would follow an object's default value without bound.
HRESULT ChangeType(OleVariant& result, const VARIANT& value, USHORT flags, VARTYPE type)
{
    const VARIANT& v = Referenced(value);
    if (IsPlainValue(v))
        return VariantChangeType(result.Put(), const_cast<VARIANT*>(&v), flags, type);
    OleVariant plain;
    PlainArgument(plain, value);
    return VariantChangeType(result.Put(), &plain.Get(), flags, type);
}

// The value converted to type; VARIANT_ALPHABOOL writes booleans as "True"/"False" as the
// languages do.
void Change(OleVariant& result, const VARIANT& value, VARTYPE type)
{
    ThrowIfFailed(ChangeType(result, value, VARIANT_ALPHABOOL, type));
}

// The value read as type. An argument that has the type already is read where it is: the
// conversion would only copy it (a text twice over).
template <class Read> auto To(const VARIANT& value, VARTYPE type, Read read)
{
    const VARIANT& v = Referenced(value);
    if (V_VT(&v) == type)
        return read(v);
    OleVariant changed;
    Change(changed, v, type);
    return read(changed.Get());
}

} // namespace

bool ToBool(const VARIANT& value)
{
    return To(value, VT_BOOL, [](const VARIANT& v) { return V_BOOL(&v) != VARIANT_FALSE; });
}

int16_t ToInt16(const VARIANT& value)
{
    return To(value, VT_I2, [](const VARIANT& v) { return V_I2(&v); });
}

int32_t ToInt32(const VARIANT& value)
{
    return To(value, VT_I4, [](const VARIANT& v) { return int32_t(V_I4(&v)); });
}

float ToFloat(const VARIANT& value)
{
    return To(value, VT_R4, [](const VARIANT& v) { return V_R4(&v); });
}

double ToDouble(const VARIANT& value)
{
    return To(value, VT_R8, [](const VARIANT& v) { return V_R8(&v); });
}

Currency ToCurrency(const VARIANT& value)
{
    return To(value, VT_CY, [](const VARIANT& v) { return Currency::FromRaw(V_CY(&v).int64); });
}

OleDate ToDate(const VARIANT& value)
{
    return To(value, VT_DATE, [](const VARIANT& v) { return OleDate(V_DATE(&v)); });
}

String ToText(const VARIANT& value)
{
    return To(value, VT_BSTR, [](const VARIANT& v) { return FromBstr(V_BSTR(&v)); });
}

OleColor ToColor(const VARIANT& value)
{
    OleVariant v;
    HRESULT hr = ChangeType(v, value, 0, VT_I4);
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

const VARIANT& Referenced(const VARIANT& value)
{
    const VARIANT* v = V_VT(&value) == (VT_BYREF | VT_VARIANT) ? V_VARIANTREF(&value) : &value;
    if (!v || ((V_VT(v) & VT_BYREF) && !V_BYREF(v)) || V_VT(v) == (VT_BYREF | VT_VARIANT))
        throw ComError(DISP_E_TYPEMISMATCH);
    return *v;
}

void PlainArgument(OleVariant& result, const VARIANT& value)
{
    ThrowIfFailed(VariantCopyInd(result.Put(), const_cast<VARIANT*>(&Referenced(value))));
    for (int depth = 0; IsObjectType(result.Type()); ++depth) {
        IUnknown* object = result.Type() == VT_DISPATCH ? V_DISPATCH(&result.Get()) : V_UNKNOWN(&result.Get());
        ComPtr<IDispatch> dispatch = ComPtr<IUnknown>(object).As<IDispatch>(IID_IDispatch);
        if (!dispatch || depth == MaxObjectDepth)
            throw ComError(DISP_E_TYPEMISMATCH);
        OleVariant fetched;
        DISPPARAMS none = {};
        if (FAILED(dispatch->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                fetched.Put(), nullptr, nullptr)))
            throw ComError(DISP_E_TYPEMISMATCH);
        ThrowIfFailed(VariantCopyInd(result.Put(), &fetched.Get()));
    }
}

bool IsPlainValue(const VARIANT& value)
{
    return !(V_VT(&value) & VT_BYREF) && !IsObjectType(V_VT(&value));
}

bool IsMissing(const VARIANT& value)
{
    const VARIANT& v = Referenced(value);
    return V_VT(&v) == VT_ERROR && V_ERROR(&v) == DISP_E_PARAMNOTFOUND;
}

void PutBack(const VARIANT& argument, const VARIANT& value)
{
    if (!(V_VT(&argument) & VT_BYREF) || !V_BYREF(&argument))
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
