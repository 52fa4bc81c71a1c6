#include "host/win32/form_automation.h"
#include "core/automation_error.h"
#include "host/win32/host_form.h"
#include "host/win32/menu_item.h"
#include "platform/win32/com/binder.h"

namespace tolva::host {

namespace {

using B = win32::Binder<FormAutomation>;
using F = FormAutomation;

const win32::DispatchMember FormMembers[] = {
    B::Property<&F::Name>(1, L"Name"),
    B::Property<&F::Caption, &F::SetCaption>(2, L"Caption"),
    B::Property<&F::Hwnd>(3, L"hwnd"),
    B::Property<&F::Controls>(4, L"Controls"),
    B::Method<&F::PopupMenu>(5, L"PopupMenu", { { 1 } }),
};

} // namespace

FormAutomation::FormAutomation(HostForm& form)
    : BoundDispatch(this, Table())
    , m_form(&form)
    , m_controls(win32::ComPtr<ControlsCollection>::Adopt(new ControlsCollection(form)))
{ }

void FormAutomation::Disconnect()
{
    m_form = nullptr;
    m_controls->Disconnect();
}

std::span<const win32::DispatchMember> FormAutomation::Table()
{
    return FormMembers;
}

HostForm& FormAutomation::Form() const
{
    if (!m_form)
        throw win32::ComError(E_UNEXPECTED);
    return *m_form;
}

String FormAutomation::Name() const
{
    return Form().Name();
}

String FormAutomation::Caption() const
{
    return Form().Caption();
}

void FormAutomation::SetCaption(StringView caption)
{
    Form().SetCaption(caption);
}

int32_t FormAutomation::Hwnd() const
{
    return int32_t(reinterpret_cast<intptr_t>(Form().Window()));
}

IDispatch* FormAutomation::Controls(const std::optional<Variant>& key) const
{
    if (key)
        return m_controls->Item(*key);
    Form(); // refused once disconnected, as the collection's members are
    return m_controls.Get();
}

void FormAutomation::PopupMenu(const VARIANT& menu, int32_t flags, std::optional<double> x, std::optional<double> y)
{
    HostForm& form = Form();
    MenuItem* item = form.MenuOf(menu);
    if (!item)
        throw AutomationError::RunTime(RunTimeError::TypeMismatch);
    form.PopupMenu(*item, flags, x, y);
}

} // namespace tolva::host
