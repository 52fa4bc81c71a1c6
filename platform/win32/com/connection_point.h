#pragma once
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>
#include <vector>

namespace tolva::win32 {

// One outgoing interface of an object: the sinks advised on it. It shares the reference count
// of the object that owns it, so a client holding it keeps the object alive.
class ConnectionPoint final : public IConnectionPoint {
public:
    // acceptDispatch: a sink that only answers IDispatch is taken too (event dispinterfaces).
    ConnectionPoint(IUnknown& owner, REFIID iid, bool acceptDispatch);
    ~ConnectionPoint();
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** out) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** out) override;

    const IID& Iid() const { return m_iid; }

    // The sinks as advised, each the interface of Iid() (or IDispatch). A copy, so that a sink
    // may unadvise while the others are being called.
    std::vector<ComPtr<IUnknown>> Sinks() const;

    void UnadviseAll();

private:
    struct Connection {
        DWORD cookie;
        ComPtr<IUnknown> sink;
    };

    IUnknown& m_owner;
    IID m_iid;
    bool m_acceptDispatch;
    std::vector<Connection> m_connections;
    DWORD m_nextCookie = 1;
};

} // namespace tolva::win32
