#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/untyped_dispatch.h"
#include <oaidl.h>
#include <ocidl.h>
#include <string>

namespace tolva::win32 {

class ScriptHost;

// The sink that connects an object's events to the script procedures prefix + EventName. The
// engines take by-reference arguments only as variants (Wine's VBScript copies typed ones,
// its JScript fails on them), so a typed by-reference argument is handed over as a reference
// to a variant holding its value, and what the procedure left there is written back.
class EventConnection final : public UntypedDispatch<IDispatch> {
public:
    // Advises a new connection on source's default event interface; throws ComError.
    static ComPtr<EventConnection> Connect(ScriptHost& host, IUnknown* source, std::wstring prefix);

    void Disconnect();

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;

private:
    EventConnection(ScriptHost& host, std::wstring prefix)
        : m_host(host)
        , m_prefix(std::move(prefix))
    { }

    std::wstring EventName(DISPID id) const;
    void* Find(REFIID iid) override;

    ScriptHost& m_host;
    std::wstring m_prefix;
    IID m_iid = IID_NULL;
    ComPtr<ITypeInfo> m_events;
    ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
    bool m_connected = false;
};

} // namespace tolva::win32
