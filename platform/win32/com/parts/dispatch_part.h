#pragma once
#include "platform/win32/com/control_object.h"
#include <oaidl.h>

namespace tolva::win32 {

// IDispatch from the control's binding table. Names compare without regard to case; a
// property read with DISPATCH_METHOD is a get (JScript reads a bare property that way).
class DispatchPart final : public PartOf<IDispatch> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
        EXCEPINFO* exception, UINT* argumentError) override;
};

} // namespace tolva::win32
