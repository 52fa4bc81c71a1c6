#include "tests/win32/support/fake_client_site.h"

namespace tolva::win32::test {

FakeClientSite::FakeClientSite()
    : m_ambients(ComPtr<FakeDispatch>::Adopt(new FakeDispatch))
    , m_extender(ComPtr<FakeDispatch>::Adopt(new FakeDispatch))
{ }

void* FakeClientSite::Find(REFIID iid)
{
    if (iid == IID_IOleClientSite)
        return static_cast<IOleClientSite*>(this);
    if (iid == IID_IOleControlSite)
        return static_cast<IOleControlSite*>(this);
    // The ambient properties answer for the site (another object: tests need no identity here).
    if (iid == IID_IDispatch)
        return static_cast<IDispatch*>(m_ambients.Get());
    return nullptr;
}

HRESULT FakeClientSite::GetExtendedControl(IDispatch** extender)
{
    *extender = m_extender.Get();
    (*extender)->AddRef();
    return S_OK;
}

} // namespace tolva::win32::test
