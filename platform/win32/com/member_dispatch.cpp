#include "platform/win32/com/member_dispatch.h"
#include "platform/win32/com/argument_conversion.h"
#include "platform/win32/com/dispatch_arguments.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/ole_variant.h"

namespace tolva::win32 {

namespace {

bool IsObject(const VARIANT& value)
{
    VARTYPE type = V_VT(&Referenced(value)) & ~VT_BYREF;
    return type == VT_DISPATCH || type == VT_UNKNOWN;
}

// Positional arguments must be there up to the first optional one; an optional one may also be
// passed as missing.
HRESULT CheckArguments(const DispatchMember& member, const DispatchArguments& arguments, UINT* argumentError)
{
    if (arguments.Count() < member.RequiredParameters() || arguments.Count() > member.parameters.size())
        return DISP_E_BADPARAMCOUNT;
    for (size_t i = 0; i < arguments.Count(); ++i) {
        if (arguments.IsPassedAsMissing(i) && !member.parameters[i].optional) {
            if (argumentError)
                *argumentError = arguments.DispatchIndex(i);
            return DISP_E_PARAMNOTOPTIONAL;
        }
    }
    return S_OK;
}

HRESULT Get(
    const DispatchMember& member, BindingTarget& target, const DISPPARAMS& params, VARIANT* result, UINT* argumentError)
{
    if (params.cNamedArgs > 0)
        return DISP_E_NONAMEDARGS;
    DispatchArguments arguments(params, false, member.parameters);
    if (HRESULT hr = CheckArguments(member, arguments, argumentError); FAILED(hr))
        return hr;
    OleVariant value;
    member.get(target, arguments, *value.Put());
    if (result)
        value.MoveTo(*result);
    return S_OK;
}

HRESULT Assign(
    const DispatchMember& member, BindingTarget& target, WORD flags, const DISPPARAMS& params, UINT* argumentError)
{
    if (member.isMethod)
        return DISP_E_MEMBERNOTFOUND;
    if (params.cArgs == 0)
        return DISP_E_PARAMNOTOPTIONAL;
    // The value is the named argument DISPID_PROPERTYPUT; clients that do not name it still
    // pass it first, and are served too.
    if (params.cNamedArgs > 1 || (params.cNamedArgs == 1 && params.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
        return DISP_E_NONAMEDARGS;
    DispatchArguments arguments(params, true, member.parameters);
    // An object goes to the by-reference setter (also when assigned without Set), anything
    // else to the value setter; Set on a plain property is refused as the languages refuse it.
    MemberSetter setter = nullptr;
    if (member.set && (arguments.ConvertValue(&IsObject) || !(flags & DISPATCH_PROPERTYPUT)))
        setter = member.set;
    else if (flags & DISPATCH_PROPERTYPUT)
        setter = member.let;
    if (!setter)
        return DISP_E_MEMBERNOTFOUND;
    if (HRESULT hr = CheckArguments(member, arguments, argumentError); FAILED(hr))
        return hr;
    setter(target, arguments);
    return S_OK;
}

} // namespace

HRESULT MemberDispatch::IdsOfNames(std::span<const DispatchMember> members, LPOLESTR* names, UINT count, DISPID* ids)
{
    if (!names || !ids)
        return E_POINTER;
    if (count == 0)
        return E_INVALIDARG;
    HRESULT hr = S_OK;
    const DispatchMember* member = FindMember(members, names[0]);
    ids[0] = member ? member->id : DISPID_UNKNOWN;
    if (!member)
        hr = DISP_E_UNKNOWNNAME;
    // Named arguments are not taken.
    for (UINT i = 1; i < count; ++i) {
        ids[i] = DISPID_UNKNOWN;
        hr = DISP_E_UNKNOWNNAME;
    }
    return hr;
}

HRESULT MemberDispatch::Invoke(std::span<const DispatchMember> members, BindingTarget& target, REFIID errorSource,
    DISPID id, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception, UINT* argumentError)
{
    if (!params || (params->cArgs > 0 && !params->rgvarg) || (params->cNamedArgs > 0 && !params->rgdispidNamedArgs))
        return E_POINTER;
    if (params->cNamedArgs > params->cArgs)
        return E_INVALIDARG;
    const DispatchMember* member = FindMember(members, id);
    if (!member)
        return DISP_E_MEMBERNOTFOUND;

    ClearErrorObject();
    if (result)
        VariantInit(result);
    try {
        if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF))
            return Assign(*member, target, flags, *params, argumentError);
        if (flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET))
            return Get(*member, target, *params, result, argumentError);
        return DISP_E_MEMBERNOTFOUND;
    } catch (const ArgumentError& e) {
        if (argumentError)
            *argumentError = e.DispatchIndex();
        return e.Result();
    } catch (const AutomationError& e) {
        SetErrorObject(e, errorSource);
        if (!exception)
            return e.HResult();
        try {
            FillExcepInfo(*exception, e);
        } catch (...) {
            return E_OUTOFMEMORY;
        }
        return DISP_E_EXCEPTION;
    } catch (...) {
        return ResultOfCurrentException(errorSource);
    }
}

} // namespace tolva::win32
