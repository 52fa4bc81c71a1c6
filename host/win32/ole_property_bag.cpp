#include "host/win32/ole_property_bag.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/com/variant_conversion.h"

namespace tolva::host {

void* OlePropertyBag::Find(REFIID iid)
{
    return iid == IID_IPropertyBag ? static_cast<IPropertyBag*>(this) : nullptr;
}

HRESULT OlePropertyBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*)
{
    if (!name || !value)
        return E_POINTER;
    return win32::Guarded(IID_IPropertyBag, [&]() -> HRESULT {
        const Variant stored = m_bag.ReadProperty(win32::ViewOf(name), Variant());
        if (stored.IsEmpty())
            return E_INVALIDARG; // no such property: the control takes its default
        const VARTYPE wanted = V_VT(value);
        win32::OleVariant converted;
        win32::ToOleVariant(stored, converted.Get());
        if (wanted != VT_EMPTY && wanted != V_VT(&converted.Get())) {
            HRESULT hr = VariantChangeType(&converted.Get(), &converted.Get(), 0, wanted);
            if (FAILED(hr))
                return hr;
        }
        VariantClear(value);
        converted.MoveTo(*value);
        return S_OK;
    });
}

HRESULT OlePropertyBag::Write(LPCOLESTR name, VARIANT* value)
{
    if (!name || !value)
        return E_POINTER;
    return win32::Guarded(IID_IPropertyBag, [&] {
        // The control leaves out values equal to their defaults itself; whatever comes is kept.
        m_bag.WriteProperty(win32::ViewOf(name), win32::FromOleVariant(*value), Variant());
        return S_OK;
    });
}

} // namespace tolva::host
