#pragma once
#include "platform/win32/windows_api.h"
#include <objbase.h>
#include <tuple>

namespace tolva::host {

// The COM plumbing of the host's own objects: a reference count from 1 and QueryInterface
// through Find. Create with new and hand to ComPtr<>::Adopt.
template <class... Interfaces> class ComObject : public Interfaces... {
public:
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
    ULONG STDMETHODCALLTYPE AddRef() override { return ULONG(++m_references); }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const LONG left = --m_references;
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

} // namespace tolva::host
