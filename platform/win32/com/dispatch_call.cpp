#include "platform/win32/com/dispatch_call.h"
#include "core/automation_error.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/exception_info.h"
#include <vector>

namespace tolva::win32 {

namespace {

constexpr int ObjectDoesNotSupportMember = 438;

[[noreturn]] void ThrowCallFailure(HRESULT hr, ExceptionInfo& info)
{
    if (hr == DISP_E_MEMBERNOTFOUND || hr == DISP_E_UNKNOWNNAME)
        throw AutomationError::RunTime(ObjectDoesNotSupportMember);
    if (hr == DISP_E_EXCEPTION) {
        const EXCEPINFO& filled = info.Filled();
        throw AutomationError(info.Code(), FromBstr(filled.bstrSource), FromBstr(filled.bstrDescription));
    }
    throw AutomationError(hr, u"TolvaKit", u"Automation error");
}

} // namespace

DISPID DispatchCall::IdOf(IDispatch* object, const wchar_t* name)
{
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR names[] = { const_cast<LPOLESTR>(name) };
    if (FAILED(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
        throw AutomationError::RunTime(ObjectDoesNotSupportMember);
    return id;
}

void DispatchCall::Invoke(IDispatch* object, DISPID id, WORD flags, std::span<VARIANT> arguments, OleVariant& result)
{
    // DISPPARAMS wants the last argument first.
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS params = { reversed.data(), nullptr, UINT(reversed.size()), 0 };
    ExceptionInfo info;
    UINT argumentError = 0;
    HRESULT hr = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, result.Put(), info.Put(), &argumentError);
    if (FAILED(hr))
        ThrowCallFailure(hr, info);
}

void DispatchCall::GetProperty(IDispatch* object, DISPID id, OleVariant& result)
{
    Invoke(object, id, DISPATCH_PROPERTYGET, {}, result);
}

void DispatchCall::GetProperty(IDispatch* object, const wchar_t* name, OleVariant& result)
{
    GetProperty(object, IdOf(object, name), result);
}

} // namespace tolva::win32
