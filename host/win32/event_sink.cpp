#include "host/win32/event_sink.h"
#include "platform/win32/com/bstr.h"
#include <ocidl.h>
#include <vector>

namespace tolva::host {

namespace {

// The default source interface of the control's class.
win32::ComPtr<ITypeInfo> EventInterfaceOf(IUnknown* control)
{
    auto classInfo = win32::ComPtr<IUnknown>(control).As<IProvideClassInfo>(IID_IProvideClassInfo);
    win32::ComPtr<ITypeInfo> coclass;
    if (!classInfo || FAILED(classInfo->GetClassInfo(coclass.Put())) || !coclass)
        return {};
    TYPEATTR* attributes = nullptr;
    if (FAILED(coclass->GetTypeAttr(&attributes)))
        return {};
    const WORD count = attributes->cImplTypes;
    coclass->ReleaseTypeAttr(attributes);
    for (UINT i = 0; i < count; ++i) {
        INT flags = 0;
        HREFTYPE reference = 0;
        win32::ComPtr<ITypeInfo> events;
        if (SUCCEEDED(coclass->GetImplTypeFlags(i, &flags)) && (flags & IMPLTYPEFLAG_FSOURCE)
            && (flags & IMPLTYPEFLAG_FDEFAULT) && SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference))
            && SUCCEEDED(coclass->GetRefTypeInfo(reference, events.Put())))
            return events;
    }
    return {};
}

} // namespace

EventSink::EventSink(win32::ComPtr<ITypeInfo> events, IID iid, Handler handler)
    : m_events(std::move(events))
    , m_iid(iid)
    , m_handler(std::move(handler))
{ }

win32::ComPtr<EventSink> EventSink::Connect(IUnknown* control, Handler handler)
{
    win32::ComPtr<ITypeInfo> events = EventInterfaceOf(control);
    if (!events)
        return {};
    TYPEATTR* attributes = nullptr;
    if (FAILED(events->GetTypeAttr(&attributes)))
        return {};
    const IID iid = attributes->guid;
    events->ReleaseTypeAttr(attributes);
    auto container = win32::ComPtr<IUnknown>(control).As<IConnectionPointContainer>(IID_IConnectionPointContainer);
    win32::ComPtr<IConnectionPoint> point;
    if (!container || FAILED(container->FindConnectionPoint(iid, point.Put())))
        return {};
    auto sink = win32::ComPtr<EventSink>::Adopt(new EventSink(events, iid, std::move(handler)));
    if (FAILED(point->Advise(static_cast<IDispatch*>(sink.Get()), &sink->m_cookie)))
        return {};
    sink->m_point = std::move(point);
    return sink;
}

void EventSink::Disconnect()
{
    m_handler = nullptr;
    if (m_point) {
        win32::ComPtr<IConnectionPoint> point = std::move(m_point);
        point->Unadvise(m_cookie);
    }
}

void* EventSink::Find(REFIID iid)
{
    return iid == IID_IDispatch || iid == m_iid ? static_cast<IDispatch*>(this) : nullptr;
}

HRESULT EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*)
{
    if (result)
        VariantInit(result);
    if (!params || !m_handler)
        return S_OK;
    win32::Bstr name;
    UINT found = 0;
    if (FAILED(m_events->GetNames(id, name.Put(), 1, &found)) || found == 0)
        return S_OK; // not an event of the interface: ignored
    std::vector<VARIANT*> arguments;
    for (UINT i = params->cArgs; i > 0; --i)
        arguments.push_back(&params->rgvarg[i - 1]);
    Handler handler = m_handler; // the handler may disconnect this sink
    win32::ComPtr<IUnknown> keepAlive(static_cast<IDispatch*>(this));
    try {
        handler(win32::FromBstr(name.Get()), arguments);
    } catch (...) {
        // The control goes on whatever its host made of the event.
    }
    return S_OK;
}

} // namespace tolva::host
