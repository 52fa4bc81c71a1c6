#pragma once
#include "core/automation_error.h"
#include "platform/win32/windows_api.h"
#include <oaidl.h>
#include <utility>

namespace tolva::win32 {

// Makes the error the thread's error object, for the caller's GetErrorInfo.
void SetErrorObject(const AutomationError& error, REFIID iid);

// Drops any earlier error object, so that a failure without one is not mistaken for it.
void ClearErrorObject();

// Fills an EXCEPINFO for Invoke's DISP_E_EXCEPTION.
void FillExcepInfo(EXCEPINFO& info, const AutomationError& error);

// The HRESULT of the exception in flight (call from a catch block): ComError its own,
// AutomationError its code with the error object set, std::bad_alloc E_OUTOFMEMORY, anything
// else E_UNEXPECTED.
HRESULT ResultOfCurrentException(REFIID iid);

// Runs body at a COM boundary: nothing thrown inside leaves it.
template <class Body> HRESULT Guarded(REFIID iid, Body&& body) noexcept
{
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return ResultOfCurrentException(iid);
    }
}

} // namespace tolva::win32
