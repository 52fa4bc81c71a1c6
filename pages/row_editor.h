#pragma once
#include "controls/command/tolva_command.h"
#include "controls/label/tolva_label.h"
#include "controls/list/tolva_list.h"
#include "core/embedded_control.h"
#include "pages/click_relay.h"
#include "pages/page_fields.h"
#include <functional>
#include <vector>

namespace tolva {

// The working copy a page edits as rows of a TolvaList (tlColumns), with the TolvaCommand buttons
// cmdAdd, cmdRemove and cmdReplace and the TolvaLabel arrows tlOrderUp and tlOrderDown that move
// the selected row. The page decides what adding, replacing and opening a row mean; removing and
// moving are the same on every page.
class RowEditor final : private TolvaListEvents {
public:
    struct Handlers {
        std::function<void()> add;
        std::function<void()> replace;
        std::function<void()> open; // double click on a selected row
        std::function<void()> changed; // a row was removed (or moved, where moves count)
    };
    struct Places {
        FieldPlace list;
        FieldPlace add, remove, replace; // the three buttons
        FieldPlace up, down; // the two arrows
    };
    RowEditor(Surface& page, ControlSite& site, const Places& places, bool movesMarkChanged, Handlers handlers);
    ~RowEditor();

    TolvaList& List() { return *m_tlColumns; }
    // The selected row, or 0 when none (or when ListIndex is past the rows).
    int32_t SelectedRow() const;
    std::vector<String> Row(int32_t row) const;
    void SetRow(int32_t row, const std::vector<String>& cells);
    // A row inserted before `before` (appended for 0); returns its index.
    int32_t InsertRow(int32_t before, const std::vector<String>& cells);

    // The parts, for the platform's tab order and for tests that click them.
    Surface& AddButton() { return m_cmdAdd.Window(); }
    Surface& RemoveButton() { return m_cmdRemove.Window(); }
    Surface& ReplaceButton() { return m_cmdReplace.Window(); }
    Surface& UpArrow() { return m_tlOrderUp.Window(); }
    Surface& DownArrow() { return m_tlOrderDown.Window(); }

private:
    void DblClick() override;
    void Remove();
    void Move(int32_t by);

    EmbeddedControl<TolvaList> m_tlColumns;
    EmbeddedControl<TolvaCommand> m_cmdAdd;
    EmbeddedControl<TolvaCommand> m_cmdRemove;
    EmbeddedControl<TolvaCommand> m_cmdReplace;
    EmbeddedControl<TolvaLabel> m_tlOrderUp;
    EmbeddedControl<TolvaLabel> m_tlOrderDown;
    bool m_movesMarkChanged;
    Handlers m_handlers;
    ClickRelay m_addClick { [this] { m_handlers.add(); } };
    ClickRelay m_removeClick { [this] { Remove(); } };
    ClickRelay m_replaceClick { [this] { m_handlers.replace(); } };
    ClickRelay m_upClick { [this] { Move(-1); } };
    ClickRelay m_downClick { [this] { Move(1); } };
};

} // namespace tolva
