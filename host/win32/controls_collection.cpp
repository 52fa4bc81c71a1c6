#include "host/win32/controls_collection.h"
#include "core/automation_error.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/binder.h"

namespace tolva::host {

namespace {

using B = win32::Binder<ControlsCollection>;

const win32::DispatchMember CollectionMembers[] = {
    B::Property<&ControlsCollection::Item>(DISPID_VALUE, L"Item"),
    B::Property<&ControlsCollection::Count>(1, L"Count"),
};

// Visual Basic's "Control not found" (730) as the form reports it.
AutomationError ControlNotFound(StringView name)
{
    return AutomationError(int32_t(0x800A02DA), u"TolvaHost", u"Control '" + String(name) + u"' not found");
}

} // namespace

std::span<const win32::DispatchMember> ControlsCollection::Table()
{
    return CollectionMembers;
}

HostForm& ControlsCollection::Form() const
{
    if (!m_form)
        throw win32::ComError(E_UNEXPECTED);
    return *m_form;
}

IDispatch* ControlsCollection::Item(const Variant& key) const
{
    HostForm& form = Form();
    if (key.Holds<String>()) {
        const String name = key.ToString();
        IDispatch* item = form.ControlObject(name);
        if (!item)
            throw ControlNotFound(name);
        return item;
    }
    const std::vector<IDispatch*> items = form.ControlObjects();
    const int32_t index = key.ToInt32();
    if (index < 0 || size_t(index) >= items.size())
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    return items[size_t(index)];
}

int32_t ControlsCollection::Count() const
{
    return int32_t(Form().ControlObjects().size());
}

} // namespace tolva::host
