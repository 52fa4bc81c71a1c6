#include "host/win32/dispatch_object.h"
#include "core/automation_error.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/error_reporting.h"
#include <vector>

namespace tolva::host {

namespace {

bool SameName(const wchar_t* a, const wchar_t* b)
{
    return CompareStringOrdinal(a, -1, b, -1, TRUE) == CSTR_EQUAL;
}

} // namespace

void* DispatchObject::Find(REFIID iid)
{
    return iid == IID_IDispatch ? static_cast<IDispatch*>(this) : nullptr;
}

HRESULT DispatchObject::UnknownName(LPOLESTR, DISPID* id)
{
    *id = DISPID_UNKNOWN;
    return DISP_E_UNKNOWNNAME;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids)
{
    if (!names || !ids || count == 0)
        return E_INVALIDARG;
    for (UINT i = 1; i < count; ++i)
        ids[i] = DISPID_UNKNOWN; // no named arguments
    for (const Member& member : Members()) {
        if (SameName(member.name, names[0])) {
            ids[0] = member.id;
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        }
    }
    return UnknownName(names[0], ids);
}

HRESULT DispatchObject::Invoke(
    DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception, UINT*)
{
    if (!params)
        return E_INVALIDARG;
    std::vector<VARIANT*> arguments;
    for (UINT i = params->cArgs; i > 0; --i)
        arguments.push_back(&params->rgvarg[i - 1]);
    if (result)
        VariantInit(result);
    try {
        win32::ComPtr<IUnknown> keepAlive(static_cast<IDispatch*>(this));
        return Call(id, flags, arguments, result);
    } catch (const AutomationError& error) {
        if (exception)
            win32::FillExcepInfo(*exception, error);
        return DISP_E_EXCEPTION;
    } catch (...) {
        return win32::ResultOfCurrentException(IID_IDispatch);
    }
}

} // namespace tolva::host
