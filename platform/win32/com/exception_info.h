#pragma once
#include "platform/win32/windows_api.h"
#include <oaidl.h>

namespace tolva::win32 {

// An EXCEPINFO that a callee fills in for us: its strings are ours and go with this object. The
// deferred fill-in, where the callee left one, has run before the fields are read.
class ExceptionInfo {
public:
    ExceptionInfo() = default;
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;
    ~ExceptionInfo();

    EXCEPINFO* Put() { return &m_info; }
    const EXCEPINFO& Filled();
    // The error code it reports: scode, or wCode as a language run-time error.
    HRESULT Code();

private:
    EXCEPINFO m_info = {};
};

} // namespace tolva::win32
