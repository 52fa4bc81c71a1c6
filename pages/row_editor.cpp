#include "pages/row_editor.h"
#include "controls/scroll/tolva_scroll.h"

namespace tolva {

namespace {

template <class Control> void Place(EmbeddedControl<Control>& control, const FieldPlace& place)
{
    control.Window().Move(place.left, place.top, place.width, place.height);
}

void SetUpButton(EmbeddedControl<TolvaCommand>& button, const FieldPlace& place, StringView caption)
{
    Place(button, place);
    button->InitProperties();
    button->SetCaption(caption);
}

void SetUpArrow(EmbeddedControl<TolvaLabel>& arrow, const FieldPlace& place, int32_t icon)
{
    Place(arrow, place);
    arrow->InitProperties();
    arrow->SetCaption(u"");
    arrow->SetArrowIcon(icon);
    arrow->SetArrowPosition(tkArrowPosition::tkEnd);
    arrow->SetBorderStyle(int32_t(tkLabelBorderStyle::Inset));
    // The scroll bar's arrow colours, given as RGB: the label draws its colours as they are.
    arrow->SetBackColor(TolvaScroll::DefaultBackColor);
    arrow->SetBackColorActive(TolvaScroll::DefaultBackColorActive);
    arrow->SetBackColorPushed(TolvaScroll::DefaultBackColorPushed);
    arrow->SetForeColor(TolvaScroll::DefaultForeColor);
    arrow->SetForeColorActive(TolvaScroll::DefaultForeColorActive);
    arrow->SetForeColorPushed(TolvaScroll::DefaultForeColorPushed);
}

} // namespace

RowEditor::RowEditor(Surface& page, ControlSite& site, const Places& places, bool movesMarkChanged, Handlers handlers)
    : m_tlColumns(page, site, u"tlColumns")
    , m_cmdAdd(page, site, u"cmdAdd")
    , m_cmdRemove(page, site, u"cmdRemove")
    , m_cmdReplace(page, site, u"cmdReplace")
    , m_tlOrderUp(page, site, u"tlOrderUp")
    , m_tlOrderDown(page, site, u"tlOrderDown")
    , m_movesMarkChanged(movesMarkChanged)
    , m_handlers(std::move(handlers))
{
    Place(m_tlColumns, places.list);
    m_tlColumns->InitProperties();
    m_tlColumns->SetEventListener(this);
    SetUpButton(m_cmdAdd, places.add, u"&Add");
    SetUpButton(m_cmdRemove, places.remove, u"&Remove");
    SetUpButton(m_cmdReplace, places.replace, u"Re&place");
    SetUpArrow(m_tlOrderUp, places.up, tkArrowIcon::tkArrowUp);
    SetUpArrow(m_tlOrderDown, places.down, tkArrowIcon::tkArrowDown);
    m_cmdAdd->SetEventListener(&m_addClick);
    m_cmdRemove->SetEventListener(&m_removeClick);
    m_cmdReplace->SetEventListener(&m_replaceClick);
    m_tlOrderUp->SetEventListener(&m_upClick);
    m_tlOrderDown->SetEventListener(&m_downClick);
}

RowEditor::~RowEditor()
{
    m_tlColumns->SetEventListener(nullptr);
    m_cmdAdd->SetEventListener(nullptr);
    m_cmdRemove->SetEventListener(nullptr);
    m_cmdReplace->SetEventListener(nullptr);
    m_tlOrderUp->SetEventListener(nullptr);
    m_tlOrderDown->SetEventListener(nullptr);
}

int32_t RowEditor::SelectedRow() const
{
    const int32_t row = m_tlColumns->ListIndex();
    return row >= 1 && row <= m_tlColumns->RowCount() ? row : 0;
}

std::vector<String> RowEditor::Row(int32_t row) const
{
    std::vector<String> cells;
    for (int32_t column = 1; column <= m_tlColumns->ColumnCount(); ++column)
        cells.push_back(m_tlColumns->RowText(row, column));
    return cells;
}

void RowEditor::SetRow(int32_t row, const std::vector<String>& cells)
{
    for (size_t i = 0; i < cells.size(); ++i)
        m_tlColumns->SetRowText(row, int32_t(i + 1), cells[i]);
}

int32_t RowEditor::InsertRow(int32_t before, const std::vector<String>& cells)
{
    m_tlColumns->AddRow(before >= 1 ? before : -1);
    const int32_t row = m_tlColumns->NewIndex();
    SetRow(row, cells);
    return row;
}

void RowEditor::DblClick()
{
    if (SelectedRow() >= 1)
        m_handlers.open();
}

void RowEditor::Remove()
{
    if (const int32_t row = SelectedRow(); row >= 1)
        m_tlColumns->RemoveRow(row);
    m_handlers.changed();
}

void RowEditor::Move(int32_t by)
{
    const int32_t row = SelectedRow();
    const int32_t other = row + by;
    if (row < 1 || other < 1 || other > m_tlColumns->RowCount())
        return;
    const std::vector<String> moving = Row(row);
    SetRow(row, Row(other));
    SetRow(other, moving);
    m_tlColumns->SetListIndex(other);
    if (m_movesMarkChanged)
        m_handlers.changed();
}

} // namespace tolva
