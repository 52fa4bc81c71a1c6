#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IQuickActivate: a container's client site, event sink, property-notify sink and view sink in
// one call, answered with the control's status and the connection cookies.
class QuickActivatePart final : public PartOf<IQuickActivate> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) override;
};

} // namespace tolva::win32
