#pragma once
#include "platform/win32/com/control_object.h"
#include <objsafe.h>

namespace tolva::win32 {

// IObjectSafety: safe for untrusted callers and untrusted data. The control touches nothing
// outside itself, and without a container it shows nothing modal.
class ObjectSafetyPart final : public PartOf<IObjectSafety> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE GetInterfaceSafetyOptions(REFIID iid, DWORD* supported, DWORD* enabled) override;
    HRESULT STDMETHODCALLTYPE SetInterfaceSafetyOptions(REFIID iid, DWORD mask, DWORD enabled) override;

private:
    bool Covers(REFIID iid) const;

    DWORD m_enabled = 0;
};

} // namespace tolva::win32
