#include "host/win32/extender.h"
#include "host/win32/form_control.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/binder.h"

namespace tolva::host {

namespace {

using B = win32::Binder<Extender>;
using E = Extender;

// Far from the ids of the controls' own members.
const win32::DispatchMember ExtenderMembers[] = {
    B::Property<&E::Name>(0x70000001, L"Name"),
    B::Property<&E::Left, &E::SetLeft>(0x70000002, L"Left"),
    B::Property<&E::Top, &E::SetTop>(0x70000003, L"Top"),
    B::Property<&E::Width, &E::SetWidth>(0x70000004, L"Width"),
    B::Property<&E::Height, &E::SetHeight>(0x70000005, L"Height"),
    B::Property<&E::Visible, &E::SetVisible>(0x70000006, L"Visible"),
    B::Property<&E::Parent>(0x70000007, L"Parent"),
    B::Property<&E::Default, &E::SetDefault>(0x70000008, L"Default"),
    B::Property<&E::TabIndex>(0x70000009, L"TabIndex"),
    B::Property<&E::Tag, &E::SetTag>(0x7000000A, L"Tag"),
};

} // namespace

Extender::Extender(FormControl& control, win32::ComPtr<IDispatch> controlDispatch)
    : BoundDispatch(this, Table())
    , m_control(&control)
    , m_controlDispatch(std::move(controlDispatch))
{ }

void Extender::Disconnect()
{
    m_control = nullptr;
    m_controlDispatch.Reset();
}

std::span<const win32::DispatchMember> Extender::Table()
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
    if (win32::FindMember(ExtenderMembers, id))
        return BoundDispatch::Invoke(id, iid, locale, flags, params, result, exception, argumentError);
    if (!m_controlDispatch)
        return DISP_E_MEMBERNOTFOUND;
    win32::ComPtr<IDispatch> control = m_controlDispatch;
    return control->Invoke(id, IID_NULL, locale, flags, params, result, exception, argumentError);
}

FormControl& Extender::Control() const
{
    if (!m_control)
        throw win32::ComError(E_UNEXPECTED);
    return *m_control;
}

String Extender::Name() const
{
    return Control().Name();
}

float Extender::Left() const
{
    return Control().Left();
}

void Extender::SetLeft(float left)
{
    FormControl& c = Control();
    c.Move(left, c.Top(), c.Width(), c.Height());
}

float Extender::Top() const
{
    return Control().Top();
}

void Extender::SetTop(float top)
{
    FormControl& c = Control();
    c.Move(c.Left(), top, c.Width(), c.Height());
}

float Extender::Width() const
{
    return Control().Width();
}

void Extender::SetWidth(float width)
{
    FormControl& c = Control();
    c.Move(c.Left(), c.Top(), width, c.Height());
}

float Extender::Height() const
{
    return Control().Height();
}

void Extender::SetHeight(float height)
{
    FormControl& c = Control();
    c.Move(c.Left(), c.Top(), c.Width(), height);
}

bool Extender::Visible() const
{
    return Control().Visible();
}

void Extender::SetVisible(bool visible)
{
    Control().SetVisible(visible);
}

IDispatch* Extender::Parent() const
{
    return Control().Form().Automation();
}

bool Extender::Default() const
{
    return Control().IsDefault();
}

void Extender::SetDefault(bool isDefault)
{
    FormControl& c = Control();
    if (isDefault)
        c.Form().SetDefaultButton(&c);
    else if (c.IsDefault())
        c.Form().SetDefaultButton(nullptr);
}

int16_t Extender::TabIndex() const
{
    return int16_t(Control().TabIndex());
}

String Extender::Tag() const
{
    return Control().Tag();
}

void Extender::SetTag(StringView tag)
{
    Control().SetTag(String(tag));
}

} // namespace tolva::host
