#include "controls/input/popups/popup_forms.h"
#include "controls/input/popups/frm_calculator.h"
#include "controls/input/popups/frm_calendar.h"
#include "controls/input/popups/frm_combo.h"

namespace tolva {

std::unique_ptr<InputPopup> PopupForms::Create(PopupKind kind)
{
    switch (kind) {
    case PopupKind::Calendar:
        return std::make_unique<frmCalendar>(m_windows.CreatePopupWindow(), m_site);
    case PopupKind::Calculator:
        return std::make_unique<frmCalculator>(m_windows.CreatePopupWindow(), m_site);
    case PopupKind::List:
        return std::make_unique<frmCombo>(m_windows.CreatePopupWindow(), m_site);
    }
    return nullptr;
}

} // namespace tolva
