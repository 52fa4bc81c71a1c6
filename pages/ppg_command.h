#pragma once
#include "controls/input/tolva_input.h"
#include "core/embedded_control.h"
#include "pages/property_page.h"

namespace tolva {

// The General page of TolvaCommand: Caption, MenuName (in a TolvaInput used as a plain text
// field) and Enabled.
class ppgCommand final : public PropertyPage, private TolvaInputEvents {
public:
    ppgCommand(Surface& surface, ControlSite& site);
    ~ppgCommand() override;

    PageTextBox& txtCaption() { return m_txtCaption; }
    TolvaInput& txtMenuName() { return *m_txtMenuName; }
    CheckBox& chkEnabled() { return m_chkEnabled; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;
    void Change() override { MarkChanged(); }

    PageTextBox& m_txtCaption;
    EmbeddedControl<TolvaInput> m_txtMenuName;
    CheckBox& m_chkEnabled;
};

} // namespace tolva
