#include "host/win32/controls_collection.h"
#include "core/automation_error.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/argument_conversion.h"

namespace tolva::host {

namespace {

enum : DISPID { ItemId = DISPID_VALUE, CountId = 1 };

constexpr DispatchObject::Member CollectionMembers[] = { { L"Item", ItemId }, { L"Count", CountId } };

// Visual Basic's "Control not found" (730) as the form reports it.
AutomationError ControlNotFound(StringView name)
{
    return AutomationError(int32_t(0x800A02DA), u"TolvaHost", u"Control '" + String(name) + u"' not found");
}

} // namespace

std::span<const DispatchObject::Member> ControlsCollection::Members() const
{
    return CollectionMembers;
}

IDispatch* ControlsCollection::Item(const VARIANT& key) const
{
    if (!m_form)
        throw AutomationError::RunTime(RunTimeError::InvalidProcedureCall);
    if (V_VT(&key) == VT_BSTR || V_VT(&key) == (VT_BSTR | VT_BYREF)) {
        const String name = win32::ToText(key);
        IDispatch* item = m_form->ControlObject(name);
        if (!item)
            throw ControlNotFound(name);
        return item;
    }
    const std::vector<IDispatch*> items = m_form->ControlObjects();
    const int32_t index = win32::ToInt32(key);
    if (index < 0 || size_t(index) >= items.size())
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    return items[size_t(index)];
}

HRESULT ControlsCollection::Call(DISPID id, WORD, std::span<VARIANT*> arguments, VARIANT* result)
{
    if (!m_form)
        return E_UNEXPECTED;
    if (id == CountId) {
        if (result)
            win32::PutInt32(*result, int32_t(m_form->ControlObjects().size()));
        return S_OK;
    }
    if (id != ItemId)
        return DISP_E_MEMBERNOTFOUND;
    if (arguments.size() != 1)
        return DISP_E_BADPARAMCOUNT;
    IDispatch* item = Item(*arguments[0]);
    if (result) {
        V_VT(result) = VT_DISPATCH;
        V_DISPATCH(result) = item;
        item->AddRef();
    }
    return S_OK;
}

} // namespace tolva::host
