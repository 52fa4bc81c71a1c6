#pragma once
#include "platform/win32/com/control_object.h"
#include <ocidl.h>

namespace tolva::win32 {

// IProvideClassInfo2: the coclass from the type library and the event interface's IID, which
// script engines and containers use to connect events.
class ClassInfoPart final : public PartOf<IProvideClassInfo2> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;
};

} // namespace tolva::win32
