#include "tests/win32/support/dispatch_helpers.h"
#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

namespace tolva::win32::test {

namespace {

constexpr size_t MaxArguments = 16;

// arguments in the caller's order, turned in place into DISPPARAMS' order.
HRESULT InvokeInOrder(IDispatch* object, DISPID id, WORD flags, std::span<VARIANT> arguments, bool namedValue,
    VARIANT* result, EXCEPINFO* exception, UINT* argumentError)
{
    std::reverse(arguments.begin(), arguments.end());
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params
        = { arguments.data(), namedValue ? &named : nullptr, UINT(arguments.size()), namedValue ? 1u : 0u };
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, result, exception, argumentError);
}

// A value of type, filled in by set.
template <class Set> VARIANT Made(VARTYPE type, Set set)
{
    VARIANT v;
    V_VT(&v) = type;
    set(v);
    return v;
}

} // namespace

HRESULT InvokeWith(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, bool namedValue,
    VARIANT* result, EXCEPINFO* exception, UINT* argumentError)
{
    std::array<VARIANT, MaxArguments> copied;
    if (arguments.size() > copied.size())
        std::abort();
    std::copy(arguments.begin(), arguments.end(), copied.begin());
    return InvokeInOrder(
        object, id, flags, std::span(copied.data(), arguments.size()), namedValue, result, exception, argumentError);
}

DISPID IdOf(IDispatch* object, const wchar_t* name)
{
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR names[] = { const_cast<LPOLESTR>(name) };
    object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    return id;
}

HRESULT Get(IDispatch* object, const wchar_t* name, OleVariant& result)
{
    return Call(object, IdOf(object, name), DISPATCH_PROPERTYGET, {}, result);
}

HRESULT Put(IDispatch* object, const wchar_t* name, const VARIANT& value, WORD flags)
{
    return InvokeWith(object, IdOf(object, name), flags, { value }, true);
}

HRESULT PutAt(IDispatch* object, const wchar_t* name, std::initializer_list<VARIANT> indexes, const VARIANT& value,
    EXCEPINFO* exception)
{
    std::array<VARIANT, MaxArguments> arguments;
    if (indexes.size() >= arguments.size())
        std::abort();
    *std::copy(indexes.begin(), indexes.end(), arguments.begin()) = value;
    return InvokeInOrder(object, IdOf(object, name), DISPATCH_PROPERTYPUT,
        std::span(arguments.data(), indexes.size() + 1), true, nullptr, exception, nullptr);
}

HRESULT Call(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, OleVariant& result,
    EXCEPINFO* exception, UINT* argumentError)
{
    return InvokeWith(object, id, flags, arguments, false, result.Put(), exception, argumentError);
}

ExceptionInfo::~ExceptionInfo()
{
    SysFreeString(bstrSource);
    SysFreeString(bstrDescription);
    SysFreeString(bstrHelpFile);
}

VARIANT Long(LONG value)
{
    return Made(VT_I4, [value](VARIANT& v) { V_I4(&v) = value; });
}

VARIANT Short(SHORT value)
{
    return Made(VT_I2, [value](VARIANT& v) { V_I2(&v) = value; });
}

VARIANT Double(double value)
{
    return Made(VT_R8, [value](VARIANT& v) { V_R8(&v) = value; });
}

VARIANT Bool(bool value)
{
    return Made(VT_BOOL, [value](VARIANT& v) { V_BOOL(&v) = value ? VARIANT_TRUE : VARIANT_FALSE; });
}

TextArgument::TextArgument(const wchar_t* text)
    : m_value(Made(VT_BSTR, [text](VARIANT& v) { V_BSTR(&v) = SysAllocString(text); }))
{ }

TextArgument::~TextArgument()
{
    VariantClear(&m_value);
}

TextArgument Text(const wchar_t* value)
{
    return TextArgument(value);
}

VARIANT BorrowedText(BSTR value)
{
    return Made(VT_BSTR, [value](VARIANT& v) { V_BSTR(&v) = value; });
}

VARIANT Object(IDispatch* value)
{
    return Made(VT_DISPATCH, [value](VARIANT& v) { V_DISPATCH(&v) = value; });
}

VARIANT Missing()
{
    return Made(VT_ERROR, [](VARIANT& v) { V_ERROR(&v) = DISP_E_PARAMNOTFOUND; });
}

LONG AsLong(const OleVariant& value)
{
    VARIANT converted;
    VariantInit(&converted);
    if (FAILED(VariantChangeType(&converted, const_cast<VARIANT*>(&value.Get()), 0, VT_I4)))
        return -999999;
    return V_I4(&converted);
}

std::wstring AsText(const OleVariant& value)
{
    OleVariant converted;
    if (FAILED(VariantChangeType(converted.Put(), const_cast<VARIANT*>(&value.Get()), VARIANT_ALPHABOOL, VT_BSTR)))
        return L"<not text>";
    return V_BSTR(&converted.Get());
}

} // namespace tolva::win32::test
