#pragma once
#include "controls/input/tolva_input.h"
#include "core/embedded_control.h"
#include "pages/property_page.h"
#include "pages/row_editor.h"

namespace tolva {

// The Columns page of TolvaList: a working copy of the columns, one row each (caption, width as
// text, alignment word), edited through three fields. Applying rebuilds the columns with
// ColumnClear and AddColumn, then sets each width to the number its text starts with.
class ppgColumns final : public PropertyPage {
public:
    ppgColumns(Surface& surface, ControlSite& site);

    PageTextBox& txtCaption() { return m_txtCaption; }
    PageTextBox& txtWidth() { return m_txtWidth; }
    TolvaInput& txtAlignment() { return *m_txtAlignment; }
    RowEditor& Rows() { return m_rows; }

private:
    void SelectionChanged() override;
    void ApplyChanges() override;
    std::vector<String> Fields() const;
    void Add();
    void Replace();
    void Open();

    RowEditor m_rows;
    PageTextBox& m_txtCaption;
    PageTextBox& m_txtWidth;
    EmbeddedControl<TolvaInput> m_txtAlignment;
};

} // namespace tolva
