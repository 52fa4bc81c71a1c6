#pragma once
#include "platform/win32/windows_api.h"
#include <objbase.h>
#include <tuple>

namespace tolva::win32 {

// The COM plumbing of a simple object: a reference count that starts at 1 (create with new and
// hand to ComPtr<>::Adopt) and QueryInterface through Find. An object the DLL hands out also
// holds a ModuleReference.
template <class... Interfaces> class ComObject : public Interfaces... {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override
    {
        if (!out)
            return E_POINTER;
        *out = iid == IID_IUnknown ? Identity() : Find(iid);
        if (!*out)
            return E_NOINTERFACE;
        static_cast<IUnknown*>(*out)->AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(InterlockedIncrement(&m_references)); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = InterlockedDecrement(&m_references);
        if (left == 0)
            delete this;
        return ULONG(left);
    }

protected:
    ComObject() = default;
    virtual ~ComObject() = default;
    // The interface pointer for iid, or nullptr. IUnknown is answered with the first interface.
    virtual void* Find(REFIID iid) = 0;

private:
    void* Identity()
    {
        return static_cast<IUnknown*>(static_cast<std::tuple_element_t<0, std::tuple<Interfaces...>>*>(this));
    }

    LONG m_references = 1;
};

} // namespace tolva::win32
