#include "platform/win32/com/class_factory.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/error_reporting.h"

namespace tolva::win32 {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IClassFactory) {
        *out = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
}

ULONG ClassFactory::AddRef()
{
    return ULONG(InterlockedIncrement(&m_references));
}

ULONG ClassFactory::Release()
{
    LONG left = InterlockedDecrement(&m_references);
    if (left == 0)
        delete this;
    return ULONG(left);
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (outer)
        return CLASS_E_NOAGGREGATION;
    return Guarded(IID_IClassFactory, [&] { return ControlObject::Create(m_class)->QueryInterface(iid, out); });
}

HRESULT ClassFactory::LockServer(BOOL lock)
{
    Module::LockServer(lock != FALSE);
    return S_OK;
}

} // namespace tolva::win32
