#include "platform/win32/pages/dispatch_target.h"
#include "core/automation_error.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/exception_info.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/com/variant_conversion.h"
#include <vector>

namespace tolva::win32 {

namespace {

// The arguments of Invoke, last first as IDispatch wants them; each owned and cleared.
class InvokeArguments {
public:
    explicit InvokeArguments(const std::vector<Variant>& arguments)
        : m_values(arguments.size())
    {
        for (size_t i = 0; i < arguments.size(); ++i) {
            VARIANT& slot = m_values[arguments.size() - 1 - i];
            VariantInit(&slot);
            if (arguments[i].IsEmpty()) {
                V_VT(&slot) = VT_ERROR;
                V_ERROR(&slot) = DISP_E_PARAMNOTFOUND;
            } else {
                ToOleVariant(arguments[i], slot);
            }
        }
    }
    ~InvokeArguments()
    {
        for (VARIANT& v : m_values)
            VariantClear(&v);
    }
    InvokeArguments(const InvokeArguments&) = delete;
    InvokeArguments& operator=(const InvokeArguments&) = delete;

    VARIANT* Data() { return m_values.data(); }
    UINT Count() const { return UINT(m_values.size()); }

private:
    std::vector<VARIANT> m_values;
};

} // namespace

DispatchTarget::DispatchTarget(IDispatch* object)
    : m_object(object)
{ }

Variant DispatchTarget::Get(StringView name, const std::vector<Variant>& indexes)
{
    return Invoke(name, DISPATCH_PROPERTYGET, indexes, false);
}

void DispatchTarget::Put(StringView name, const std::vector<Variant>& indexes, const Variant& value)
{
    std::vector<Variant> arguments = indexes;
    arguments.push_back(value);
    Invoke(name, DISPATCH_PROPERTYPUT, arguments, true);
}

void DispatchTarget::Call(StringView name, const std::vector<Variant>& arguments)
{
    Invoke(name, DISPATCH_METHOD, arguments, false);
}

Variant DispatchTarget::Invoke(StringView name, WORD flags, const std::vector<Variant>& arguments, bool namedValue)
{
    Bstr member(name);
    LPOLESTR names[] = { member.Get() };
    DISPID id = DISPID_UNKNOWN;
    ThrowIfFailed(m_object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id));

    InvokeArguments values(arguments);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters { values.Data(), namedValue ? &put : nullptr, values.Count(), namedValue ? 1u : 0u };
    OleVariant result;
    ExceptionInfo exception;
    const HRESULT hr = m_object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                        flags == DISPATCH_PROPERTYGET ? result.Put() : nullptr, exception.Put(), nullptr);
    if (hr == DISP_E_EXCEPTION) {
        const EXCEPINFO& filled = exception.Filled();
        throw AutomationError(exception.Code(), FromBstr(filled.bstrSource), FromBstr(filled.bstrDescription));
    }
    ThrowIfFailed(hr);
    return FromOleVariant(result.Get());
}

} // namespace tolva::win32
