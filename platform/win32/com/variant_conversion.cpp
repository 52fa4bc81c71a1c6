#include "platform/win32/com/variant_conversion.h"
#include "core/automation_error.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/font_conversion.h"
#include "platform/win32/com/ole_variant.h"
#include <type_traits>

namespace tolva::win32 {

void ToOleVariant(const Variant& value, VARIANT& target)
{
    std::visit(
        [&target](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                V_VT(&target) = VT_EMPTY;
            else if constexpr (std::is_same_v<T, bool>)
                PutBool(target, v);
            else if constexpr (std::is_same_v<T, int16_t>)
                PutInt16(target, v);
            else if constexpr (std::is_same_v<T, int32_t>)
                PutInt32(target, v);
            else if constexpr (std::is_same_v<T, float>)
                PutFloat(target, v);
            else if constexpr (std::is_same_v<T, double>)
                PutDouble(target, v);
            else if constexpr (std::is_same_v<T, Currency>)
                PutCurrency(target, v);
            else if constexpr (std::is_same_v<T, OleDate>)
                PutDate(target, v);
            else if constexpr (std::is_same_v<T, String>)
                PutText(target, v);
            else {
                static_assert(std::is_same_v<T, Font>);
                ComPtr<IFontDisp> font = CreateStdFont(v).template As<IFontDisp>(IID_IFontDisp);
                V_VT(&target) = VT_DISPATCH;
                V_DISPATCH(&target) = font.Detach();
            }
        },
        value.Value());
}

Variant ArgumentVariant(const VARIANT& value)
{
    // A plain value is read where it is; anything else is reduced to a copy first.
    OleVariant plain;
    const VARIANT* v = &Referenced(value);
    if (!IsPlainValue(*v)) {
        PlainArgument(plain, value);
        v = &plain.Get();
    }
    switch (V_VT(v)) {
    case VT_EMPTY:
    case VT_BOOL:
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_INT:
    case VT_UI4:
    case VT_UINT:
    case VT_I8:
    case VT_UI8:
    case VT_DECIMAL:
    case VT_R4:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
    case VT_BSTR:
        return FromOleVariant(*v);
    default:
        break;
    }
    throw ComError(DISP_E_TYPEMISMATCH);
}

Variant FromOleVariant(const VARIANT& value)
{
    // A reference is followed in a copy; a value is read where it is.
    OleVariant referenced;
    const VARIANT* pointer = &value;
    if (V_VT(&value) & VT_BYREF) {
        if (FAILED(VariantCopyInd(referenced.Put(), const_cast<VARIANT*>(&value))))
            throw AutomationError::RunTime(RunTimeError::TypeMismatch);
        pointer = &referenced.Get();
    }
    const VARIANT& v = *pointer;
    switch (V_VT(&v)) {
    case VT_EMPTY:
        return Variant();
    case VT_BOOL:
        return Variant(V_BOOL(&v) != VARIANT_FALSE);
    case VT_I1:
        return Variant(int16_t(V_I1(&v)));
    case VT_UI1:
        return Variant(int16_t(V_UI1(&v)));
    case VT_I2:
        return Variant(V_I2(&v));
    case VT_UI2:
        return Variant(int32_t(V_UI2(&v)));
    case VT_I4:
        return Variant(int32_t(V_I4(&v)));
    case VT_INT:
        return Variant(int32_t(V_INT(&v)));
    case VT_UI4:
        return Variant(uint32_t(V_UI4(&v)));
    case VT_UINT:
        return Variant(uint32_t(V_UINT(&v)));
    case VT_I8:
    case VT_UI8:
    case VT_DECIMAL:
        return Variant(ToDouble(v));
    case VT_R4:
        return Variant(V_R4(&v));
    case VT_R8:
        return Variant(V_R8(&v));
    case VT_CY:
        return Variant(Currency::FromRaw(V_CY(&v).int64));
    case VT_DATE:
        return Variant(OleDate(V_DATE(&v)));
    case VT_BSTR:
        return Variant(FromBstr(V_BSTR(&v)));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        if (ComPtr<IFont> font = FontOf(v))
            return Variant(ReadFont(font.Get()));
        break;
    default:
        break;
    }
    throw AutomationError::RunTime(RunTimeError::TypeMismatch);
}

} // namespace tolva::win32
