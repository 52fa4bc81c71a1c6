#pragma once
#include "core/string.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/untyped_dispatch.h"
#include <functional>
#include <oaidl.h>
#include <ocidl.h>
#include <span>

namespace tolva::host {

// Receives the events of one control on its default source interface and hands each on by
// name: Click, MouseDown with its arguments in declared order (by reference, as fired).
class EventSink final : public win32::UntypedDispatch<IDispatch> {
public:
    using Handler = std::function<void(StringView event, std::span<VARIANT*> arguments)>;

    // Connects to the control's event interface (found through IProvideClassInfo); a control
    // without one gets no sink and nullptr comes back.
    static win32::ComPtr<EventSink> Connect(IUnknown* control, Handler handler);
    void Disconnect();

    HRESULT STDMETHODCALLTYPE Invoke(
        DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO*, UINT*) override;

protected:
    void* Find(REFIID iid) override;

private:
    EventSink(win32::ComPtr<ITypeInfo> events, IID iid, Handler handler);

    win32::ComPtr<ITypeInfo> m_events;
    IID m_iid;
    Handler m_handler;
    win32::ComPtr<IConnectionPoint> m_point;
    DWORD m_cookie = 0;
};

} // namespace tolva::host
