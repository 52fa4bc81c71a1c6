#pragma once
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/module.h"
#include <unknwn.h>

namespace tolva::win32 {

// Creates the COM objects of one control class. Counts as a live object while a client holds it.
class ClassFactory final : public ComObject<IClassFactory> {
public:
    explicit ClassFactory(const ControlClass& controlClass)
        : m_class(controlClass)
    { }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

protected:
    void* Find(REFIID iid) override;

private:
    ModuleReference m_module;
    const ControlClass& m_class;
};

} // namespace tolva::win32
