#include "tests/win32/support/dispatch_helpers.h"
#include <vector>

namespace tolva::win32::test {

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
    VARIANT argument = value;
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params = { &argument, &named, 1, 1 };
    return object->Invoke(IdOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, flags, &params, nullptr, nullptr, nullptr);
}

HRESULT PutAt(IDispatch* object, const wchar_t* name, std::initializer_list<VARIANT> indexes, const VARIANT& value,
    EXCEPINFO* exception)
{
    std::vector<VARIANT> arguments { value }; // DISPPARAMS holds the value first, then the last index
    arguments.insert(arguments.end(), std::rbegin(indexes), std::rend(indexes));
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params = { arguments.data(), &named, UINT(arguments.size()), 1 };
    return object->Invoke(
        IdOf(object, name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params, nullptr, exception, nullptr);
}

HRESULT Call(IDispatch* object, DISPID id, WORD flags, std::initializer_list<VARIANT> arguments, OleVariant& result,
    EXCEPINFO* exception, UINT* argumentError)
{
    std::vector<VARIANT> reversed(std::rbegin(arguments), std::rend(arguments));
    DISPPARAMS params = { reversed.data(), nullptr, UINT(reversed.size()), 0 };
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, result.Put(), exception, argumentError);
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
