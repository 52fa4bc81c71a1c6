#pragma once
#include "platform/win32/com/untyped_dispatch.h"
#include <oaidl.h>
#include <span>

namespace tolva::host {

// A late-bound automation object of the host (the form, its controls collection, a menu, a
// control's extender): IDispatch without type information, members found by name regardless of
// case. Subclasses list their members and carry out calls; arguments arrive in declared order.
class DispatchObject : public win32::UntypedDispatch<IDispatch> {
public:
    struct Member {
        const wchar_t* name;
        DISPID id;
    };

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;

protected:
    void* Find(REFIID iid) override;

    virtual std::span<const Member> Members() const = 0;
    // A name the member table lacks (an extender forwards it to its control); DISP_E_UNKNOWNNAME.
    virtual HRESULT UnknownName(LPOLESTR name, DISPID* id);
    // Carries out a call. arguments are in declared order; for a property put the last one is
    // the value. May throw AutomationError or ComError; result may be null.
    virtual HRESULT Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result) = 0;
};

} // namespace tolva::host
