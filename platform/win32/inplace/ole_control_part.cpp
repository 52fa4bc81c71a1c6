#include "platform/win32/inplace/ole_control_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/inplace/in_place_part.h"
#include <olectl.h>
#include <vector>

namespace tolva::win32 {

namespace {

constexpr WORD FirstCommand = 1;

// The key a WM_KEYDOWN / WM_SYSKEYDOWN / WM_CHAR / WM_SYSCHAR message is about, as a character.
char16_t KeyOf(const MSG& message)
{
    if (message.message == WM_CHAR || message.message == WM_SYSCHAR)
        return char16_t(message.wParam);
    return char16_t(MapVirtualKeyW(UINT(message.wParam), MAPVK_VK_TO_CHAR) & 0xFFFF);
}

} // namespace

StringView AmbientName(DISPID id)
{
    switch (id) {
    case DISPID_AMBIENT_BACKCOLOR:
        return u"BackColor";
    case DISPID_AMBIENT_DISPLAYNAME:
        return u"DisplayName";
    case DISPID_AMBIENT_FONT:
        return u"Font";
    case DISPID_AMBIENT_FORECOLOR:
        return u"ForeColor";
    case DISPID_AMBIENT_LOCALEID:
        return u"LocaleID";
    case DISPID_AMBIENT_USERMODE:
        return u"UserMode";
    case DISPID_AMBIENT_DISPLAYASDEFAULT:
        return u"DisplayAsDefault";
    default:
        return u"";
    }
}

OleControlPart::~OleControlPart()
{
    if (m_accelerators)
        DestroyAcceleratorTable(m_accelerators);
}

void* OleControlPart::Interface(REFIID iid)
{
    return iid == IID_IOleControl ? static_cast<IOleControl*>(this) : nullptr;
}

HRESULT OleControlPart::GetControlInfo(CONTROLINFO* info)
{
    if (!info)
        return E_POINTER;
    if (info->cb < sizeof(CONTROLINFO))
        return E_INVALIDARG;
    std::vector<ACCEL> keys;
    for (char16_t key : m_object.ControlSurface().AccessKeys()) {
        const SHORT scan = VkKeyScanW(wchar_t(key));
        if (scan != -1)
            keys.push_back(ACCEL { FALT | FVIRTKEY, WORD(scan & 0xFF), WORD(FirstCommand + keys.size()) });
    }
    if (m_accelerators)
        DestroyAcceleratorTable(m_accelerators);
    m_accelerators = keys.empty() ? nullptr : CreateAcceleratorTableW(keys.data(), int(keys.size()));
    info->hAccel = m_accelerators;
    info->cAccel = USHORT(m_accelerators ? keys.size() : 0);
    info->dwFlags = m_object.Class().behaviour.controlInfoFlags;
    return S_OK;
}

HRESULT OleControlPart::OnMnemonic(MSG* message)
{
    if (!message)
        return E_POINTER;
    auto* inPlace = m_object.FindPart<InPlacePart>();
    if (!inPlace)
        return E_UNEXPECTED;
    return Entered(IID_IOleControl, [&] {
        inPlace->Surface().PressAccessKey(KeyOf(*message));
        return S_OK;
    });
}

HRESULT OleControlPart::OnAmbientPropertyChange(DISPID id)
{
    auto* inPlace = m_object.FindPart<InPlacePart>();
    if (!inPlace)
        return E_UNEXPECTED;
    return Entered(IID_IOleControl, [&] {
        if (SurfaceListener* listener = inPlace->Surface().Listener())
            listener->OnAmbientChanged(AmbientName(id));
        return S_OK;
    });
}

HRESULT OleControlPart::FreezeEvents(BOOL)
{
    return S_OK;
}

} // namespace tolva::win32
