#include "host/win32/form_automation.h"
#include "core/automation_error.h"
#include "host/win32/host_form.h"
#include "host/win32/menu_item.h"
#include "platform/win32/com/argument_conversion.h"
#include <optional>

namespace tolva::host {

namespace {

enum : DISPID { NameId = 1, CaptionId, HwndId, ControlsId, PopupMenuId };

constexpr DispatchObject::Member FormMembers[] = {
    { L"Name", NameId },
    { L"Caption", CaptionId },
    { L"hwnd", HwndId },
    { L"Controls", ControlsId },
    { L"PopupMenu", PopupMenuId },
};

std::optional<double> OptionalNumber(std::span<VARIANT*> arguments, size_t index)
{
    if (index >= arguments.size() || win32::IsMissing(*arguments[index]))
        return std::nullopt;
    return win32::ToDouble(*arguments[index]);
}

} // namespace

FormAutomation::FormAutomation(HostForm& form)
    : m_form(&form)
    , m_controls(win32::ComPtr<ControlsCollection>::Adopt(new ControlsCollection(form)))
{ }

void FormAutomation::Disconnect()
{
    m_form = nullptr;
    m_controls->Disconnect();
}

std::span<const DispatchObject::Member> FormAutomation::Members() const
{
    return FormMembers;
}

HRESULT FormAutomation::Call(DISPID id, WORD flags, std::span<VARIANT*> arguments, VARIANT* result)
{
    if (!m_form)
        return E_UNEXPECTED;
    HostForm& form = *m_form;
    if (flags & DISPATCH_PROPERTYPUT) {
        if (id != CaptionId)
            throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
        if (arguments.size() != 1)
            return DISP_E_BADPARAMCOUNT;
        form.SetCaption(win32::ToText(*arguments[0]));
        return S_OK;
    }
    switch (id) {
    case NameId:
        if (result)
            win32::PutText(*result, form.Name());
        return S_OK;
    case CaptionId:
        if (result)
            win32::PutText(*result, form.Caption());
        return S_OK;
    case HwndId:
        // A window handle travels as a Long, as a form's hwnd does.
        if (result)
            win32::PutInt32(*result, int32_t(reinterpret_cast<intptr_t>(form.Window())));
        return S_OK;
    case ControlsId:
        if (arguments.size() > 1)
            return DISP_E_BADPARAMCOUNT;
        if (result) {
            // Controls(name) is Controls.Item(name).
            IDispatch* value = arguments.empty() ? m_controls.Get() : m_controls->Item(*arguments[0]);
            V_VT(result) = VT_DISPATCH;
            V_DISPATCH(result) = value;
            value->AddRef();
        }
        return S_OK;
    case PopupMenuId: {
        if (arguments.empty() || arguments.size() > 4)
            return DISP_E_BADPARAMCOUNT;
        MenuItem* menu = form.MenuOf(*arguments[0]);
        if (!menu)
            throw AutomationError::RunTime(RunTimeError::TypeMismatch);
        const std::optional<double> flagsValue = OptionalNumber(arguments, 1);
        form.PopupMenu(
            *menu, flagsValue ? int(*flagsValue) : 0, OptionalNumber(arguments, 2), OptionalNumber(arguments, 3));
        return S_OK;
    }
    default:
        return DISP_E_MEMBERNOTFOUND;
    }
}

} // namespace tolva::host
