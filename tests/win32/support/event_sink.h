#pragma once
#include "platform/win32/com/untyped_dispatch.h"
#include <functional>
#include <oaidl.h>
#include <vector>

namespace tolva::win32::test {

// A client's sink for a control's events: records each event with the types and values of its
// arguments, and lets the test act inside the handler (change by-reference arguments, call back
// into the control, release it).
class EventSink final : public UntypedDispatch<IDispatch> {
public:
    struct Event {
        DISPID id;
        std::vector<VARTYPE> types;
        std::vector<double> values; // the referenced values, in declared order
    };
    // arguments in declared order.
    using Handler = std::function<void(DISPID id, const std::vector<VARIANT*>& arguments)>;

    explicit EventSink(const IID& eventIid)
        : m_iid(eventIid)
    { }

    void OnEvent(Handler handler) { m_handler = std::move(handler); }
    const std::vector<Event>& Events() const { return m_events; }
    std::vector<DISPID> Ids() const;

    HRESULT STDMETHODCALLTYPE Invoke(
        DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*) override;

protected:
    void* Find(REFIID iid) override;

private:
    IID m_iid;
    Handler m_handler;
    std::vector<Event> m_events;
};

// Connects a sink to an object's connection point for iid; returns the cookie (0 on failure).
DWORD Advise(IUnknown* object, const IID& iid, IUnknown* sink);

} // namespace tolva::win32::test
