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
    VARIANT v;
    V_VT(&v) = VT_I4;
    V_I4(&v) = value;
    return v;
}

VARIANT Short(SHORT value)
{
    VARIANT v;
    V_VT(&v) = VT_I2;
    V_I2(&v) = value;
    return v;
}

VARIANT Double(double value)
{
    VARIANT v;
    V_VT(&v) = VT_R8;
    V_R8(&v) = value;
    return v;
}

VARIANT Bool(bool value)
{
    VARIANT v;
    V_VT(&v) = VT_BOOL;
    V_BOOL(&v) = value ? VARIANT_TRUE : VARIANT_FALSE;
    return v;
}

TextArgument::TextArgument(const wchar_t* text)
{
    V_VT(&m_value) = VT_BSTR;
    V_BSTR(&m_value) = SysAllocString(text);
}

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
    VARIANT v;
    V_VT(&v) = VT_BSTR;
    V_BSTR(&v) = value;
    return v;
}

VARIANT Object(IDispatch* value)
{
    VARIANT v;
    V_VT(&v) = VT_DISPATCH;
    V_DISPATCH(&v) = value;
    return v;
}

VARIANT Missing()
{
    VARIANT v;
    V_VT(&v) = VT_ERROR;
    V_ERROR(&v) = DISP_E_PARAMNOTFOUND;
    return v;
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
