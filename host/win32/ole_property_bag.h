#pragma once
#include "core/property_bag.h"
#include "platform/win32/com/com_object.h"
#include <ocidl.h>

namespace tolva::host {

// A control's property bag as the container hands it over (IPropertyBag) over the host's own
// bag: values cross as VARIANTs, a font as a standard font object.
class OlePropertyBag final : public win32::ComObject<IPropertyBag> {
public:
    explicit OlePropertyBag(PropertyBag& bag)
        : m_bag(bag)
    { }

    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override;

protected:
    void* Find(REFIID iid) override;

private:
    PropertyBag& m_bag;
};

} // namespace tolva::host
