#pragma once
#include "platform/win32/com/control_object.h"
#include <oleidl.h>

namespace tolva::win32 {

// IViewObject2: the control drawn into any device context the container hands over (a print
// preview, a metafile, a windowless container's window), and the container's advise sink told
// when the picture changes.
class ViewObjectPart final : public PartOf<IViewObject2> {
public:
    using PartOf::PartOf;

    void* Interface(REFIID iid) override;

    // Tells the advise sink, if any, that the content changed.
    void NotifyViewChange();
    // The control's size in HIMETRIC.
    SIZEL Extent();

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetInfo,
        HDC dc, LPCRECTL bounds, LPCRECTL metafileBounds, BOOL(STDMETHODCALLTYPE* proceed)(ULONG_PTR),
        ULONG_PTR proceedArgument) override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target,
        HDC targetInfo, LOGPALETTE** colors) override;
    HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, LPSIZEL size) override;

private:
    ComPtr<IAdviseSink> m_sink;
    DWORD m_aspects = 0;
    DWORD m_flags = 0;
};

} // namespace tolva::win32
