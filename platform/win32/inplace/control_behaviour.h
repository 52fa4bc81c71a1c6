#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

struct ControlClass;

// How a control class behaves towards a container: its OLEMISC flags, its CONTROLINFO flags,
// and whether clicking it takes the keyboard focus.
struct ControlBehaviour {
    DWORD miscStatus;
    DWORD controlInfoFlags;
    bool takesFocus;
};

ControlBehaviour BehaviourOf(const ControlClass& controlClass);

} // namespace tolva::win32
