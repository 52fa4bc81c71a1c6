#pragma once
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <vector>

namespace tolva::win32 {

class OleVariant;
class ScriptHost;

// The script's WScript object: Echo(values...), CreateObject(progId [, prefix]),
// ConnectObject(object, prefix), Sleep(milliseconds), Quit([exitCode]).
class WScriptObject final : public IDispatch {
public:
    explicit WScriptObject(ScriptHost& host)
        : m_host(host)
    { }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;

private:
    ~WScriptObject() = default;

    HRESULT Echo(const std::vector<VARIANT>& arguments);
    HRESULT CreateObject(const std::vector<VARIANT>& arguments, VARIANT* result);
    HRESULT ConnectObject(const std::vector<VARIANT>& arguments);
    HRESULT Sleep(const std::vector<VARIANT>& arguments);
    HRESULT Quit(const std::vector<VARIANT>& arguments);

    ScriptHost& m_host;
    LONG m_references = 0;
};

} // namespace tolva::win32
