#pragma once
#include "pages/property_page.h"

namespace tolva {

// The General page of TolvaLabel: Caption, the three enumerations as option-button groups (the
// ArrowIcon buttons each beside a picture of its glyph), Enabled and Kerning.
class ppgLabel final : public PropertyPage {
public:
    ppgLabel(Surface& surface, ControlSite& site);

    PageTextBox& txtCaption() { return m_txtCaption; }
    OptionGroup& optAlign() { return m_optAlign; }
    OptionGroup& optArrowIcon() { return m_optArrowIcon; }
    OptionGroup& optArrowPosition() { return m_optArrowPosition; }
    CheckBox& chkEnabled() { return m_chkEnabled; }
    CheckBox& chkKerning() { return m_chkKerning; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;
    void PaintPictures(Canvas& canvas) override;

    PageTextBox& m_txtCaption;
    OptionGroup& m_optAlign;
    OptionGroup& m_optArrowIcon;
    OptionGroup& m_optArrowPosition;
    CheckBox& m_chkEnabled;
    CheckBox& m_chkKerning;
};

} // namespace tolva
