#include "host/win32/extender.h"
#include "core/automation_error.h"
#include "host/win32/form_control.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/argument_conversion.h"

namespace tolva::host {

namespace {

// Far from the ids of the controls' own members.
enum : DISPID {
    NameId = 0x70000001,
    LeftId,
    TopId,
    WidthId,
    HeightId,
    VisibleId,
    ParentId,
    DefaultId,
    TabIndexId,
    TagId,
};

constexpr DispatchObject::Member ExtenderMembers[] = {
    { L"Name", NameId },
    { L"Left", LeftId },
    { L"Top", TopId },
    { L"Width", WidthId },
    { L"Height", HeightId },
    { L"Visible", VisibleId },
    { L"Parent", ParentId },
    { L"Default", DefaultId },
    { L"TabIndex", TabIndexId },
    { L"Tag", TagId },
};

bool IsExtenderId(DISPID id)
{
    return id >= NameId && id <= TagId;
}

} // namespace

Extender::Extender(FormControl& control, win32::ComPtr<IDispatch> controlDispatch)
    : m_control(&control)
    , m_controlDispatch(std::move(controlDispatch))
{ }

void Extender::Disconnect()
{
    m_control = nullptr;
    m_controlDispatch.Reset();
}

std::span<const DispatchObject::Member> Extender::Members() const
{
    return ExtenderMembers;
}

HRESULT Extender::UnknownName(LPOLESTR name, DISPID* id)
{
    *id = DISPID_UNKNOWN;
    if (!m_controlDispatch)
        return DISP_E_UNKNOWNNAME;
    return m_controlDispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, id);
}

HRESULT Extender::Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params, VARIANT* result,
    EXCEPINFO* exception, UINT* argumentError)
{
    if (IsExtenderId(id))
        return DispatchObject::Invoke(id, iid, locale, flags, params, result, exception, argumentError);
    if (!m_controlDispatch)
        return DISP_E_MEMBERNOTFOUND;
    win32::ComPtr<IDispatch> control = m_controlDispatch;
    return control->Invoke(id, IID_NULL, locale, flags, params, result, exception, argumentError);
}

HRESULT Extender::Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result)
{
    if (!m_control)
        return E_UNEXPECTED;
    FormControl& control = *m_control;
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
        if (arguments.size() != 1)
            return DISP_E_BADPARAMCOUNT;
        const VARIANT& value = *arguments[0];
        switch (id) {
        case LeftId:
            control.Move(win32::ToFloat(value), control.Top(), control.Width(), control.Height());
            return S_OK;
        case TopId:
            control.Move(control.Left(), win32::ToFloat(value), control.Width(), control.Height());
            return S_OK;
        case WidthId:
            control.Move(control.Left(), control.Top(), win32::ToFloat(value), control.Height());
            return S_OK;
        case HeightId:
            control.Move(control.Left(), control.Top(), control.Width(), win32::ToFloat(value));
            return S_OK;
        case VisibleId:
            control.SetVisible(win32::ToBool(value));
            return S_OK;
        case TagId:
            control.SetTag(win32::ToText(value));
            return S_OK;
        case DefaultId:
            if (win32::ToBool(value))
                control.Form().SetDefaultButton(&control);
            else if (control.IsDefault())
                control.Form().SetDefaultButton(nullptr);
            return S_OK;
        default:
            throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall); // read-only here
        }
    }
    if (!arguments.empty())
        return DISP_E_BADPARAMCOUNT;
    if (!result)
        return S_OK;
    switch (id) {
    case NameId:
        win32::PutText(*result, control.Name());
        return S_OK;
    case LeftId:
        win32::PutFloat(*result, control.Left());
        return S_OK;
    case TopId:
        win32::PutFloat(*result, control.Top());
        return S_OK;
    case WidthId:
        win32::PutFloat(*result, control.Width());
        return S_OK;
    case HeightId:
        win32::PutFloat(*result, control.Height());
        return S_OK;
    case VisibleId:
        win32::PutBool(*result, control.Visible());
        return S_OK;
    case ParentId:
        V_VT(result) = VT_DISPATCH;
        V_DISPATCH(result) = control.Form().Automation();
        V_DISPATCH(result)->AddRef();
        return S_OK;
    case DefaultId:
        win32::PutBool(*result, control.IsDefault());
        return S_OK;
    case TabIndexId:
        win32::PutInt16(*result, int16_t(control.TabIndex()));
        return S_OK;
    case TagId:
        win32::PutText(*result, control.Tag());
        return S_OK;
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace tolva::host
