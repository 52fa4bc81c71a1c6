#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// A memory device context compatible with another one (the screen's when null), deleted with
// this object.
class MemoryDc {
public:
    explicit MemoryDc(HDC compatibleWith)
        : m_dc(CreateCompatibleDC(compatibleWith))
    { }
    ~MemoryDc()
    {
        if (m_dc)
            DeleteDC(m_dc);
    }
    MemoryDc(const MemoryDc&) = delete;
    MemoryDc& operator=(const MemoryDc&) = delete;

    HDC Get() const { return m_dc; }

private:
    HDC m_dc;
};

} // namespace tolva::win32
