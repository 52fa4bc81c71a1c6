#include "platform/win32/com/connection_point.h"
#include "platform/win32/com/enumerator.h"
#include "platform/win32/com/error_reporting.h"
#include <algorithm>
#include <olectl.h>

namespace tolva::win32 {

ConnectionPoint::ConnectionPoint(IUnknown& owner, REFIID iid, bool acceptDispatch)
    : m_owner(owner)
    , m_iid(iid)
    , m_acceptDispatch(acceptDispatch)
{ }

ConnectionPoint::~ConnectionPoint() = default;

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IConnectionPoint) {
        *out = static_cast<IConnectionPoint*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

ULONG ConnectionPoint::AddRef()
{
    return m_owner.AddRef();
}
ULONG ConnectionPoint::Release()
{
    return m_owner.Release();
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid)
{
    if (!iid)
        return E_POINTER;
    *iid = m_iid;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** out)
{
    if (!out)
        return E_POINTER;
    return m_owner.QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(out));
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie)
{
    if (!sink || !cookie)
        return E_POINTER;
    *cookie = 0;
    return Guarded(IID_IConnectionPoint, [&] {
        ComPtr<IUnknown> keepAlive(&m_owner); // a sink may release the object from its QueryInterface
        ComPtr<IUnknown> typed;
        if (FAILED(sink->QueryInterface(m_iid, typed.PutVoid())) && m_acceptDispatch)
            sink->QueryInterface(IID_IDispatch, typed.PutVoid());
        if (!typed)
            return CONNECT_E_CANNOTCONNECT;
        m_connections.push_back({ m_nextCookie, std::move(typed) });
        *cookie = m_nextCookie++;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie)
{
    auto found = std::find_if(
        m_connections.begin(), m_connections.end(), [cookie](const Connection& c) { return c.cookie == cookie; });
    if (found == m_connections.end())
        return CONNECT_E_NOCONNECTION;
    // Released after leaving the list: the sink's release may call back into this object, and
    // may release it.
    ComPtr<IUnknown> keepAlive(&m_owner);
    ComPtr<IUnknown> sink = std::move(found->sink);
    m_connections.erase(found);
    return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return Guarded(IID_IConnectionPoint, [&] {
        std::vector<CONNECTDATA> items;
        for (const Connection& c : m_connections)
            items.push_back({ c.sink.Get(), c.cookie });
        *out = new ConnectionEnumerator(std::move(items));
        return S_OK;
    });
}

std::vector<ComPtr<IUnknown>> ConnectionPoint::Sinks() const
{
    std::vector<ComPtr<IUnknown>> sinks;
    sinks.reserve(m_connections.size());
    for (const Connection& c : m_connections)
        sinks.push_back(c.sink);
    return sinks;
}

void ConnectionPoint::UnadviseAll()
{
    std::vector<Connection> dropped;
    dropped.swap(m_connections);
}

} // namespace tolva::win32
