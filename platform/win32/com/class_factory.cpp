#include "platform/win32/com/class_factory.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/pages/property_page_object.h"

namespace tolva::win32 {

ClassFactory::ClassFactory(const ControlClass& controlClass)
    : m_create([&controlClass] { return ControlObject::Create(controlClass); })
{ }

ClassFactory::ClassFactory(const PageClass& pageClass)
    : m_create([&pageClass] { return PropertyPageObject::Create(pageClass); })
{ }

void* ClassFactory::Find(REFIID iid)
{
    return iid == IID_IClassFactory ? static_cast<IClassFactory*>(this) : nullptr;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (outer)
        return CLASS_E_NOAGGREGATION;
    return Guarded(IID_IClassFactory, [&] { return m_create()->QueryInterface(iid, out); });
}

HRESULT ClassFactory::LockServer(BOOL lock)
{
    Module::LockServer(lock != FALSE);
    return S_OK;
}

} // namespace tolva::win32
