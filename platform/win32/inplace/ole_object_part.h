#pragma once
#include "platform/win32/com/control_object.h"
#include <oleidl.h>

namespace tolva::win32 {

// IOleObject: the client site (which the control's site answers ambients and the extender
// through), verbs that activate the control in place, extents and the container's advise sinks.
class OleObjectPart final : public PartOf<IOleObject> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
    HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) override;
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
    HRESULT STDMETHODCALLTYPE DoVerb(
        LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent, LPCRECT position) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
    HRESULT STDMETHODCALLTYPE Update() override;
    HRESULT STDMETHODCALLTYPE IsUpToDate() override;
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* clsid) override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* type) override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** advises) override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) override;

private:
    IOleAdviseHolder* AdviseHolder();

    ComPtr<IOleAdviseHolder> m_adviseHolder;
};

} // namespace tolva::win32
