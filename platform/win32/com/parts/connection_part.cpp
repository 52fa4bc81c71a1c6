#include "platform/win32/com/parts/connection_part.h"
#include "platform/win32/com/enumerator.h"
#include "platform/win32/com/error_reporting.h"
#include <olectl.h>

namespace tolva::win32 {

void* ConnectionPart::Interface(REFIID iid)
{
    return iid == IID_IConnectionPointContainer ? static_cast<IConnectionPointContainer*>(this) : nullptr;
}

HRESULT ConnectionPart::EnumConnectionPoints(IEnumConnectionPoints** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return Guarded(IID_IConnectionPointContainer, [&] {
        std::vector<IConnectionPoint*> points = { &m_object.Events(), &m_object.PropertyNotifications() };
        *out = new ConnectionPointEnumerator(std::move(points));
        return S_OK;
    });
}

HRESULT ConnectionPart::FindConnectionPoint(REFIID iid, IConnectionPoint** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    for (ConnectionPoint* point : { &m_object.Events(), &m_object.PropertyNotifications() }) {
        if (point->Iid() == iid) {
            point->AddRef();
            *out = point;
            return S_OK;
        }
    }
    return CONNECT_E_NOCONNECTION;
}

} // namespace tolva::win32
