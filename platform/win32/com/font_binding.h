#pragma once
#include "platform/win32/com/dispatch_member.h"

namespace tolva::win32 {

// The binding-table entry of a control's Font: get hands out the control's live font object,
// set by reference makes the caller's font object the control's.
DispatchMember FontProperty(DISPID id, const wchar_t* name);

} // namespace tolva::win32
