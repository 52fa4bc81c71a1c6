#pragma once
#include "platform/win32/com/dispatch_member.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <span>

namespace tolva::win32 {

// IDispatch over a binding table, for whatever object the table was made for: the control
// objects' dispatch part and every BoundDispatch answer through it.
namespace MemberDispatch {

// The id of names[0] in the table (DISP_E_UNKNOWNNAME when it has none); named arguments are not
// taken.
HRESULT IdsOfNames(std::span<const DispatchMember> members, LPOLESTR* names, UINT count, DISPID* ids);

// IDispatch::Invoke on target: property get (also as a method call, as JScript reads a bare
// property), put by value or by reference, method. A refused argument gives its HRESULT and
// index, an AutomationError DISP_E_EXCEPTION with exception filled and the thread's error object
// set, naming errorSource; nothing is thrown. The caller keeps target alive for the call.
HRESULT Invoke(std::span<const DispatchMember> members, BindingTarget& target, REFIID errorSource, DISPID id,
    WORD flags, DISPPARAMS* params, VARIANT* result, EXCEPINFO* exception, UINT* argumentError);

} // namespace MemberDispatch

} // namespace tolva::win32
