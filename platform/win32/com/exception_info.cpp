#include "platform/win32/com/exception_info.h"
#include <oleauto.h>

namespace tolva::win32 {

ExceptionInfo::~ExceptionInfo()
{
    SysFreeString(m_info.bstrSource);
    SysFreeString(m_info.bstrDescription);
    SysFreeString(m_info.bstrHelpFile);
}

const EXCEPINFO& ExceptionInfo::Filled()
{
    if (auto fill = m_info.pfnDeferredFillIn) {
        m_info.pfnDeferredFillIn = nullptr;
        fill(&m_info);
    }
    return m_info;
}

HRESULT ExceptionInfo::Code()
{
    const EXCEPINFO& info = Filled();
    return info.scode ? info.scode : HRESULT(0x800A0000u + info.wCode);
}

} // namespace tolva::win32
