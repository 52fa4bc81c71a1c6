#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IConnectionPointContainer: the control's event interface and IPropertyNotifySink.
class ConnectionPart final : public PartOf<IConnectionPointContainer> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** out) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** out) override;
};

} // namespace tolva::win32
