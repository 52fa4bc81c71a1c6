#pragma once
#include "pages/property_page.h"

namespace tolva {

// The page of TolvaInput: Text, MaxLength, Locked and SelectionTracking.
class ppgInput final : public PropertyPage {
public:
    ppgInput(Surface& surface, ControlSite& site);

    PageTextBox& txtText() { return m_txtText; }
    PageTextBox& txtMaxLength() { return m_txtMaxLength; }
    CheckBox& chkLocked() { return m_chkLocked; }
    CheckBox& chkSelectionTracking() { return m_chkSelectionTracking; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;

    PageTextBox& m_txtText;
    PageTextBox& m_txtMaxLength;
    CheckBox& m_chkLocked;
    CheckBox& m_chkSelectionTracking;
};

} // namespace tolva
