#pragma once
#include "pages/property_page.h"

namespace tolva {

// The General page of TolvaList: ShowColumnHeaders, SelectionTracking and RowHeight.
class ppgListGeneral final : public PropertyPage {
public:
    ppgListGeneral(Surface& surface, ControlSite& site);

    CheckBox& chkShowColumnHeaders() { return m_chkShowColumnHeaders; }
    CheckBox& chkSelectionTracking() { return m_chkSelectionTracking; }
    PageTextBox& txtRowHeight() { return m_txtRowHeight; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;

    CheckBox& m_chkShowColumnHeaders;
    CheckBox& m_chkSelectionTracking;
    PageTextBox& m_txtRowHeight;
};

} // namespace tolva
