#pragma once
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// Selects an object into a device context for the lifetime of this guard and puts the previous
// object back afterwards, so that the selected object can be deleted safely.
class Selection {
public:
    Selection(HDC dc, HGDIOBJ object)
        : m_dc(dc)
        , m_previous(object ? SelectObject(dc, object) : nullptr)
    { }
    ~Selection()
    {
        if (m_previous)
            SelectObject(m_dc, m_previous);
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

} // namespace tolva::win32
