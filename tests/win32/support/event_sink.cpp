#include "tests/win32/support/event_sink.h"
#include "platform/win32/com/com_ptr.h"
#include <ocidl.h>

namespace tolva::win32::test {

void* EventSink::Find(REFIID iid)
{
    return iid == IID_IDispatch || iid == m_iid ? static_cast<IDispatch*>(this) : nullptr;
}

std::vector<DISPID> EventSink::Ids() const
{
    std::vector<DISPID> ids;
    for (const Event& e : m_events)
        ids.push_back(e.id);
    return ids;
}

HRESULT EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*, UINT*)
{
    Event event { id, {}, {} };
    std::vector<VARIANT*> arguments;
    for (UINT i = params->cArgs; i > 0; --i) {
        VARIANT* v = &params->rgvarg[i - 1];
        arguments.push_back(v);
        event.types.push_back(V_VT(v));
        switch (V_VT(v)) {
        case VT_BYREF | VT_I2:
            event.values.push_back(*V_I2REF(v));
            break;
        case VT_BYREF | VT_R4:
            event.values.push_back(*V_R4REF(v));
            break;
        default:
            event.values.push_back(0);
            break;
        }
    }
    m_events.push_back(event);
    if (m_handler)
        m_handler(id, arguments);
    return S_OK;
}

DWORD Advise(IUnknown* object, const IID& iid, IUnknown* sink)
{
    auto container = ComPtr<IUnknown>(object).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    ComPtr<IConnectionPoint> point;
    if (!container || FAILED(container->FindConnectionPoint(iid, point.Put())))
        return 0;
    DWORD cookie = 0;
    point->Advise(sink, &cookie);
    return cookie;
}

} // namespace tolva::win32::test
