#pragma once
#include "platform/win32/com/com_object.h"
#include <activscp.h>
#include <servprov.h>

namespace tolva::win32 {

class ScriptHost;

// The engine's view of the host: named objects, error reports. It answers IServiceProvider
// (with no services) because Wine's engines refuse CreateObject for objects with
// IObjectWithSite when the site has none.
class ScriptSite final : public ComObject<IActiveScriptSite, IServiceProvider> {
public:
    explicit ScriptSite(ScriptHost& host)
        : m_host(host)
    { }

    HRESULT STDMETHODCALLTYPE GetLCID(LCID* lcid) override;
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR* version) override;
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override;
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID iid, void** out) override;

protected:
    void* Find(REFIID iid) override;

private:
    void Report(IActiveScriptError& error);

    ScriptHost& m_host;
};

} // namespace tolva::win32
