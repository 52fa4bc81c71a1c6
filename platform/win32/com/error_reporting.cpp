#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/com_ptr.h"
#include <new>

namespace tolva::win32 {

void SetErrorObject(const AutomationError& error, REFIID iid)
{
    ComPtr<ICreateErrorInfo> created;
    if (FAILED(CreateErrorInfo(created.Put())))
        return;
    created->SetGUID(iid);
    created->SetSource(const_cast<LPOLESTR>(WidePointer(error.Source())));
    created->SetDescription(const_cast<LPOLESTR>(WidePointer(error.Description())));
    if (ComPtr<IErrorInfo> info = created.As<IErrorInfo>(IID_IErrorInfo))
        SetErrorInfo(0, info.Get());
}

void ClearErrorObject()
{
    SetErrorInfo(0, nullptr);
}

void FillExcepInfo(EXCEPINFO& info, const AutomationError& error)
{
    info = {};
    info.scode = error.HResult();
    info.bstrSource = Bstr(error.Source()).Detach();
    info.bstrDescription = Bstr(error.Description()).Detach();
}

HRESULT ResultOfCurrentException(REFIID iid)
{
    try {
        throw;
    } catch (const ComError& e) {
        ClearErrorObject();
        return e.Result();
    } catch (const AutomationError& e) {
        SetErrorObject(e, iid);
        return e.HResult();
    } catch (const std::bad_alloc&) {
        ClearErrorObject();
        return E_OUTOFMEMORY;
    } catch (...) {
        ClearErrorObject();
        return E_UNEXPECTED;
    }
}

} // namespace tolva::win32
