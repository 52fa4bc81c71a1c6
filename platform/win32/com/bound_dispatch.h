#pragma once
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/com/untyped_dispatch.h"
#include <oaidl.h>
#include <span>

namespace tolva::win32 {

// A simple COM object whose IDispatch serves the subclass through a binding table that Binder
// made for it, without type information; names compare regardless of case. Collection-like
// sub-objects, pop-up windows and property pages, and the host's form, menus, extenders and
// Controls collection are ones.
class BoundDispatch : public UntypedDispatch<IDispatch>, private BindingTarget {
public:
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;

protected:
    // bound: the object the binding table members is made for, the subclass itself (pass this).
    BoundDispatch(void* bound, std::span<const DispatchMember> members)
        : m_bound(bound)
        , m_members(members)
    { }

    void* Find(REFIID iid) override;

    // A name the table lacks (an extender passes it on to its control); DISP_E_UNKNOWNNAME.
    virtual HRESULT UnknownName(LPOLESTR name, DISPID* id);

private:
    void* BoundObject() override { return m_bound; }

    void* m_bound;
    std::span<const DispatchMember> m_members;
};

} // namespace tolva::win32
