#pragma once
#include "platform/win32/windows_api.h"
#include <exception>
#include <winerror.h>

namespace tolva::win32 {

// A failed COM call or a refused value inside the COM layer. The entry point that catches it
// returns its HRESULT as it is (DISP_E_TYPEMISMATCH, DISP_E_OVERFLOW, E_OUTOFMEMORY ...).
class ComError : public std::exception {
public:
    explicit ComError(HRESULT hr)
        : m_hr(hr)
    { }
    HRESULT Result() const { return m_hr; }
    const char* what() const noexcept override { return "COM call failed"; }

private:
    HRESULT m_hr;
};

inline void ThrowIfFailed(HRESULT hr)
{
    if (FAILED(hr))
        throw ComError(hr);
}

} // namespace tolva::win32
