#pragma once
#include "core/property_bag.h"
#include "platform/win32/windows_api.h"
#include <ocidl.h>

namespace tolva::win32 {

// The container's IPropertyBag as the core sees it. A key the bag lacks, or cannot read, gives
// the default; a value equal to its default is not written.
class ComPropertyBag final : public PropertyBag {
public:
    ComPropertyBag(IPropertyBag* bag, IErrorLog* log)
        : m_bag(bag)
        , m_log(log)
    { }

    Variant ReadProperty(StringView key, const Variant& defaultValue) override;
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue) override;

private:
    IPropertyBag* m_bag;
    IErrorLog* m_log;
};

} // namespace tolva::win32
