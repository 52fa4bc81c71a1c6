#pragma once
#include "platform/win32/com/ole_variant.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <span>

namespace tolva::win32 {

// Late-bound calls on a host's objects (extender, ambients, form). A failure throws
// AutomationError with the callee's code and description; a missing member is run-time
// error 438.
namespace DispatchCall {

DISPID IdOf(IDispatch* object, const wchar_t* name);

// flags: DISPATCH_PROPERTYGET, DISPATCH_METHOD ... arguments in the caller's order.
void Invoke(IDispatch* object, DISPID id, WORD flags, std::span<VARIANT> arguments, OleVariant& result);

void GetProperty(IDispatch* object, DISPID id, OleVariant& result);
void GetProperty(IDispatch* object, const wchar_t* name, OleVariant& result);

} // namespace DispatchCall

} // namespace tolva::win32
