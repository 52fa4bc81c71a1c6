#pragma once
#include "host/win32/dispatch_object.h"
#include "platform/win32/com/com_ptr.h"

namespace tolva::host {

class FormControl;

// What a script or the control itself sees of a control on the form: the container's
// properties (Name, Left, Top, Width, Height, Visible, Default, TabIndex, Tag and the Parent
// form) with every other name passed on to the control, as a form's extender aggregates it.
class Extender final : public DispatchObject {
public:
    Extender(FormControl& control, win32::ComPtr<IDispatch> controlDispatch);
    void Disconnect();

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override;

protected:
    std::span<const Member> Members() const override;
    HRESULT UnknownName(LPOLESTR name, DISPID* id) override;
    HRESULT Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result) override;

private:
    FormControl* m_control;
    win32::ComPtr<IDispatch> m_controlDispatch;
};

} // namespace tolva::host
