#pragma once
#include "platform/win32/com/com_ptr.h"
#include "tests/win32/support/fake_dispatch.h"
#include "tests/win32/support/fake_object.h"
#include <ocidl.h>

namespace tolva::win32::test {

// A container's site for one control: its ambient properties (the site's IDispatch) and its
// extender (IOleControlSite::GetExtendedControl), both filled in by the test.
class FakeClientSite final : public FakeObject<IOleClientSite, IOleControlSite> {
public:
    FakeClientSite();

    FakeDispatch& Ambients() { return *m_ambients.Get(); }
    FakeDispatch& Extender() { return *m_extender.Get(); }

    HRESULT STDMETHODCALLTYPE SaveObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** extender) override;
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*, DWORD) override { return S_FALSE; }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

protected:
    void* Find(REFIID iid) override;

private:
    ComPtr<FakeDispatch> m_ambients;
    ComPtr<FakeDispatch> m_extender;
};

} // namespace tolva::win32::test
