#include "host/script/script_site.h"
#include "host/script/script_host.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/exception_info.h"
#include <cwctype>

namespace tolva::win32 {

void* ScriptSite::Find(REFIID iid)
{
    if (iid == IID_IActiveScriptSite)
        return static_cast<IActiveScriptSite*>(this);
    if (iid == IID_IServiceProvider)
        return static_cast<IServiceProvider*>(this);
    return nullptr;
}

HRESULT ScriptSite::GetLCID(LCID*)
{
    return E_NOTIMPL;
}

HRESULT ScriptSite::GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo** info)
{
    if (item)
        *item = nullptr;
    if (info)
        *info = nullptr;
    if (!name)
        return E_INVALIDARG;
    IUnknown* object = nullptr;
    try {
        object = m_host.NamedObject(name);
    } catch (...) {
        return E_OUTOFMEMORY;
    }
    if (!object)
        return TYPE_E_ELEMENTNOTFOUND;
    if ((mask & SCRIPTINFO_IUNKNOWN) && item) {
        *item = object;
        object->AddRef();
    }
    if ((mask & SCRIPTINFO_ITYPEINFO) && info) {
        ComPtr<IDispatch> dispatch = ComPtr<IUnknown>(object).As<IDispatch>(IID_IDispatch);
        if (!dispatch || FAILED(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, info)))
            *info = nullptr;
    }
    return S_OK;
}

HRESULT ScriptSite::GetDocVersionString(BSTR*)
{
    return E_NOTIMPL;
}

HRESULT ScriptSite::OnScriptError(IActiveScriptError* error)
{
    if (!error)
        return E_POINTER;
    try {
        Report(*error);
    } catch (...) {
        // Nothing may go back into the engine; the error is lost only when memory is.
    }
    return S_OK;
}

void ScriptSite::Report(IActiveScriptError& error)
{
    ScriptError reported;
    win32::ExceptionInfo info;
    if (SUCCEEDED(error.GetExceptionInfo(info.Put()))) {
        const EXCEPINFO& filled = info.Filled();
        reported.code = info.Code();
        reported.source = filled.bstrSource ? filled.bstrSource : L"";
        reported.description = filled.bstrDescription ? filled.bstrDescription : L"";
    }
    if (reported.description.empty()) {
        // Some engines report a bare HRESULT (Wine's VBScript for a division by zero).
        wchar_t* text = nullptr;
        if (FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                nullptr, DWORD(reported.code), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr)) {
            reported.description = text;
            while (!reported.description.empty() && iswspace(reported.description.back()))
                reported.description.pop_back();
            LocalFree(text);
        }
    }
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    if (SUCCEEDED(error.GetSourcePosition(&context, &line, &column))) {
        reported.line = line + 1;
        reported.column = column + 1;
    }
    Bstr text;
    if (SUCCEEDED(error.GetSourceLineText(text.Put())) && text.Get())
        reported.lineText = text.Get();
    m_host.ReportError(std::move(reported));
}

HRESULT ScriptSite::QueryService(REFGUID, REFIID, void** out)
{
    if (out)
        *out = nullptr;
    return E_NOINTERFACE;
}

} // namespace tolva::win32
