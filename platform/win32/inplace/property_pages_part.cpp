#include "platform/win32/inplace/property_pages_part.h"
#include "platform/win32/pages/page_classes.h"

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
    const auto list = PagesOf(m_object.Class());
    if (list.empty())
        return S_OK;
    auto* ids = static_cast<GUID*>(CoTaskMemAlloc(list.size() * sizeof(GUID)));
    if (!ids)
        return E_OUTOFMEMORY;
    for (size_t i = 0; i < list.size(); ++i)
        ids[i] = list[i]->clsid;
    pages->cElems = ULONG(list.size());
    pages->pElems = ids;
    return S_OK;
}

} // namespace tolva::win32
