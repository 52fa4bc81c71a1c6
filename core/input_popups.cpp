#include "core/input_popups.h"

namespace tolva {

InputPopup* InputPopups::Load(PopupKind kind)
{
    Slot& slot = m_slots[IndexOf(kind)];
    if (slot.loaded)
        return slot.popup.get();
    for (PopupKind other : { PopupKind::Calendar, PopupKind::Calculator, PopupKind::List })
        if (other != kind)
            Unload(other);
    if (!slot.popup) {
        slot.popup = m_factory.Create(kind);
        if (!slot.popup || slot.popup->Kind() != kind) {
            slot.popup.reset();
            return nullptr;
        }
    }
    slot.loaded = true;
    slot.popup->Load();
    return slot.popup.get();
}

InputPopup* InputPopups::Loaded(PopupKind kind) const
{
    const Slot& slot = m_slots[IndexOf(kind)];
    return slot.loaded ? slot.popup.get() : nullptr;
}

void InputPopups::Unload(PopupKind kind)
{
    Slot& slot = m_slots[IndexOf(kind)];
    if (!slot.loaded)
        return;
    slot.loaded = false;
    slot.popup->Unload();
}

} // namespace tolva
