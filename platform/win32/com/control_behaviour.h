#pragma once
#include "platform/win32/windows_api.h"
#include <olectl.h>

namespace tolva::win32 {

// How a control class behaves towards its container and the dialog manager. It is part of the
// class's record (ControlClass), so that the registry's MiscStatus, IOleObject::GetMiscStatus,
// IQuickActivate and IOleControl::GetControlInfo all answer the same.
struct ControlBehaviour {
    DWORD miscStatus; // OLEMISC flags
    DWORD controlInfoFlags; // CTRLINFO flags
    bool takesFocus; // a click gives the control's window the keyboard focus
    UINT dialogCodes; // the keys its window keeps from the dialog manager (WM_GETDLGCODE)
    bool keepsEnter; // and Enter too, instead of the dialog's default button
};

namespace Behaviours {

// What form designers expect of any ActiveX control: set the client site first, activate when
// visible, inside-out, no linking inside, recompose on resize.
constexpr DWORD EveryControl = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT
    | OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

// Takes the focus and keeps arrows, characters and Enter.
constexpr ControlBehaviour Focusable { EveryControl, 0, true, DLGC_WANTARROWS | DLGC_WANTCHARS, true };
// A push button: as Focusable, clicks on Enter and shows the container's default mark.
constexpr ControlBehaviour Button { EveryControl | OLEMISC_ACTSLIKEBUTTON, CTRLINFO_EATS_RETURN, true,
    DLGC_WANTARROWS | DLGC_WANTCHARS, true };
// Without key events: clicking it leaves the focus where it was.
constexpr ControlBehaviour NoFocus { EveryControl | OLEMISC_NOUIACTIVATE, 0, false, DLGC_WANTARROWS | DLGC_WANTCHARS,
    true };

} // namespace Behaviours

} // namespace tolva::win32
