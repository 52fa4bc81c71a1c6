#include "platform/win32/com/parts/persist_bag_part.h"
#include "platform/win32/com/com_property_bag.h"
#include "platform/win32/com/error_reporting.h"

namespace tolva::win32 {

void* PersistBagPart::Interface(REFIID iid)
{
    return iid == IID_IPersistPropertyBag ? static_cast<IPersistPropertyBag*>(this) : nullptr;
}

HRESULT PersistBagPart::GetClassID(CLSID* clsid)
{
    if (!clsid)
        return E_POINTER;
    *clsid = *m_object.Class().clsid;
    return S_OK;
}

HRESULT PersistBagPart::InitNew()
{
    return Entered(IID_IPersistPropertyBag, [this] {
        m_object.InitNew();
        return S_OK;
    });
}

HRESULT PersistBagPart::Load(IPropertyBag* bag, IErrorLog* log)
{
    if (!bag)
        return E_POINTER;
    return Entered(IID_IPersistPropertyBag, [&] {
        ComPropertyBag values(bag, log);
        m_object.Load(values);
        return S_OK;
    });
}

HRESULT PersistBagPart::Save(IPropertyBag* bag, BOOL clearDirty, BOOL)
{
    if (!bag)
        return E_POINTER;
    return Entered(IID_IPersistPropertyBag, [&] {
        ComPropertyBag values(bag, nullptr);
        m_object.Save(values);
        if (clearDirty)
            m_object.SetDirty(false);
        return S_OK;
    });
}

} // namespace tolva::win32
