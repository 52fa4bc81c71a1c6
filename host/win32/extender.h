#pragma once
#include "core/string.h"
#include "platform/win32/com/bound_dispatch.h"
#include "platform/win32/com/com_ptr.h"

namespace tolva::host {

class FormControl;

// What a script or the control itself sees of a control on the form: the container's
// properties (Name, Left, Top, Width, Height, Visible, Default, TabIndex, Tag and the Parent
// form) with every other name passed on to the control, as a form's extender aggregates it.
class Extender final : public win32::BoundDispatch {
public:
    Extender(FormControl& control, win32::ComPtr<IDispatch> controlDispatch);
    void Disconnect();

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override;

    // The container's properties; once disconnected they fail with E_UNEXPECTED.
    String Name() const;
    float Left() const;
    void SetLeft(float left);
    float Top() const;
    void SetTop(float top);
    float Width() const;
    void SetWidth(float width);
    float Height() const;
    void SetHeight(float height);
    bool Visible() const;
    void SetVisible(bool visible);
    IDispatch* Parent() const;
    bool Default() const;
    void SetDefault(bool isDefault);
    int16_t TabIndex() const;
    String Tag() const;
    void SetTag(StringView tag);

    // The binding table of the extender's own members; their ids are far from the controls'.
    static std::span<const win32::DispatchMember> Table();

protected:
    HRESULT UnknownName(LPOLESTR name, DISPID* id) override;

private:
    FormControl& Control() const;

    FormControl* m_control;
    win32::ComPtr<IDispatch> m_controlDispatch;
};

} // namespace tolva::host
