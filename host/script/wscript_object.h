#pragma once
#include "platform/win32/com/untyped_dispatch.h"
#include <oaidl.h>
#include <vector>

namespace tolva::win32 {

class ScriptHost;

// The script's WScript object: Echo(values...), CreateObject(progId [, prefix]),
// ConnectObject(object, prefix), Sleep(milliseconds), Quit([exitCode]).
class WScriptObject final : public UntypedDispatch<IDispatch> {
public:
    explicit WScriptObject(ScriptHost& host)
        : m_host(host)
    { }

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;

protected:
    void* Find(REFIID iid) override;

private:
    HRESULT Echo(const std::vector<VARIANT>& arguments);
    HRESULT CreateObject(const std::vector<VARIANT>& arguments, VARIANT* result);
    HRESULT ConnectObject(const std::vector<VARIANT>& arguments);
    HRESULT Sleep(const std::vector<VARIANT>& arguments);
    HRESULT Quit(const std::vector<VARIANT>& arguments);

    ScriptHost& m_host;
};

} // namespace tolva::win32
