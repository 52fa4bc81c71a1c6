#pragma once
#include "platform/win32/com/control_object.h"
#include <oaidl.h>

namespace tolva::win32 {

// ISupportErrorInfo: the dispatch and persistence interfaces leave an error object with the
// code, source and description of a failure.
class ErrorInfoPart final : public PartOf<ISupportErrorInfo> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override;
};

} // namespace tolva::win32
