#include "host/win32/in_place_frame.h"

namespace tolva::host {

void* InPlaceFrame::Find(REFIID iid)
{
    if (iid == IID_IOleWindow || iid == IID_IOleInPlaceUIWindow || iid == IID_IOleInPlaceFrame)
        return static_cast<IOleInPlaceFrame*>(this);
    return nullptr;
}

void InPlaceFrame::Disconnect()
{
    m_window = nullptr;
    m_active.Reset();
}

HRESULT InPlaceFrame::GetWindow(HWND* window)
{
    if (!window)
        return E_POINTER;
    *window = m_window;
    return m_window ? S_OK : E_FAIL;
}

HRESULT InPlaceFrame::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR)
{
    m_active = win32::ComPtr<IOleInPlaceActiveObject>(object);
    return S_OK;
}

} // namespace tolva::host
