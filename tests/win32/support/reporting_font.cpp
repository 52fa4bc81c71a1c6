#include "tests/win32/support/reporting_font.h"
#include "platform/win32/com/bstr.h"
#include <cmath>

namespace tolva::win32::test {

HRESULT ReportingFont::get_Name(BSTR* name)
{
    if (!name)
        return E_POINTER;
    *name = Bstr(m_font.name).Detach();
    return S_OK;
}

HRESULT ReportingFont::get_Size(CY* size)
{
    if (!size)
        return E_POINTER;
    size->int64 = std::llround(m_font.size * 10000.0);
    return S_OK;
}

} // namespace tolva::win32::test
