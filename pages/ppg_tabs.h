#pragma once
#include "controls/tabs/tolva_tabs.h"
#include "core/embedded_control.h"
#include "pages/property_page.h"
#include "pages/row_editor.h"

namespace tolva {

// The page of TolvaTabs: TabWidth and the tab captions as rows of a list, edited through
// txtTabText. Applying rebuilds the tabs with Clear and AddItem, so their TabData goes back to 0.
// Moving a row does not count as an edit on its own.
class ppgTabs final : public PropertyPage {
public:
    ppgTabs(Surface& surface, ControlSite& site);

    PageTextBox& txtTabWidth() { return m_txtTabWidth; }
    PageTextBox& txtTabText() { return m_txtTabText; }
    RowEditor& Rows() { return m_rows; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;
    void Add();
    void Replace();
    void Open();

    PageTextBox& m_txtTabWidth;
    PageTextBox& m_txtTabText;
    RowEditor m_rows;
    EmbeddedControl<TolvaTabs> m_ttProperties;
};

} // namespace tolva
