#include "platform/win32/inplace/property_pages_part.h"

namespace tolva::win32 {

void* PropertyPagesPart::Interface(REFIID iid)
{
    return iid == IID_ISpecifyPropertyPages ? static_cast<ISpecifyPropertyPages*>(this) : nullptr;
}

HRESULT PropertyPagesPart::GetPages(CAUUID* pages)
{
    if (!pages)
        return E_POINTER;
    pages->cElems = 0;
    pages->pElems = nullptr;
    return S_OK;
}

} // namespace tolva::win32
