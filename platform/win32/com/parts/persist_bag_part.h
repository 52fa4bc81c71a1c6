#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IPersistPropertyBag: the control's properties in the container's bag, with the keys, order
// and defaults the control reads and writes; the font as a standard font object.
class PersistBagPart final : public PartOf<IPersistPropertyBag> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* clsid) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;
};

} // namespace tolva::win32
