#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// ISpecifyPropertyPages: the designer's property pages of the control, in order.
class PropertyPagesPart final : public PartOf<ISpecifyPropertyPages> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) override;
};

} // namespace tolva::win32
