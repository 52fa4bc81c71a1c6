#pragma once
#include "platform/win32/com/com_object.h"
#include "platform/win32/com/com_ptr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/module.h"
#include <functional>
#include <unknwn.h>

namespace tolva::win32 {

struct PageClass;

// Creates the COM objects of one control class or property page. Counts as a live object while a
// client holds it.
class ClassFactory final : public ComObject<IClassFactory> {
public:
    explicit ClassFactory(const ControlClass& controlClass);
    explicit ClassFactory(const PageClass& pageClass);

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

protected:
    void* Find(REFIID iid) override;

private:
    ModuleReference m_module;
    std::function<ComPtr<IUnknown>()> m_create;
};

} // namespace tolva::win32
