// The list as a screen reader reads it: rows, and in a table their cells, made when asked for.
#include "controls/list/tolva_list.h"
#include "core/variant.h"

namespace tolva {

namespace {

bool IsTable(const TolvaList& list)
{
    return list.ColumnCount() > 1;
}

double ColumnLeft(const TolvaList& list, int32_t column)
{
    double left = 0;
    for (int32_t c = 1; c < column; ++c)
        left += list.ColumnWidth(int16_t(c));
    return left;
}

bool RowOnScreen(const TolvaList& list, int32_t row)
{
    return row >= list.TopIndex() && row - list.TopIndex() < list.VisibleRows();
}

// Where row's band is, as the list draws it, from column first to column last.
Rect RowBand(const TolvaList& list, const Surface& surface, int32_t row, int32_t first, int32_t last)
{
    const double top = list.HeaderHeight() + double(row - list.TopIndex()) * list.RowHeight();
    const double left = ColumnLeft(list, first);
    return PixelRectOf(surface, left, top, ColumnLeft(list, last + 1) - left, list.RowHeight());
}

// The texts of the row's cells, one after the other.
String RowName(const TolvaList& list, int32_t row)
{
    String name;
    for (int32_t column = 1; column <= list.ColumnCount(); ++column) {
        if (column > 1)
            name += u", ";
        name += list.RowText(Variant(row), Variant(column));
    }
    return name;
}

// Cell (row, column), both one-based.
class CellItem final : public AccessibleElement {
public:
    CellItem(const TolvaList& list, const Surface& surface, int32_t row, int32_t column)
        : m_list(list)
        , m_surface(surface)
        , m_row(row)
        , m_column(column)
    { }

    bool Exists() const override { return m_row <= m_list.RowCount() && m_column <= m_list.ColumnCount(); }

    AccessibleDescription Describe() const override
    {
        return { .name = m_list.RowText(Variant(m_row), Variant(m_column)),
            .role = AccessibleRole::Cell,
            .state = RowOnScreen(m_list, m_row) ? 0 : AccessibleState::Offscreen,
            .value = {},
            .shortcut = {},
            .defaultAction = {},
            .location = RowBand(m_list, m_surface, m_row, m_column, m_column) };
    }
    bool DoDefaultAction() override { return false; }

private:
    const TolvaList& m_list;
    const Surface& m_surface;
    int32_t m_row;
    int32_t m_column;
};

// Row number row (one-based): a list item, or a table row whose cells are its items.
class RowItem final : public AccessibleElement {
public:
    RowItem(TolvaList& list, Surface& surface, int32_t row)
        : m_list(list)
        , m_surface(surface)
        , m_row(row)
    { }

    bool Exists() const override { return m_row <= m_list.RowCount(); }

    AccessibleDescription Describe() const override
    {
        uint32_t state = SelectableItemState(m_surface, m_list.SelectedChild() == m_row - 1);
        if (m_list.FocusedChild() == m_row - 1)
            state |= AccessibleState::Focused;
        if (!RowOnScreen(m_list, m_row))
            state |= AccessibleState::Offscreen;
        return { .name = RowName(m_list, m_row),
            .role = IsTable(m_list) ? AccessibleRole::Row : AccessibleRole::ListItem,
            .state = state,
            .value = {},
            .shortcut = {},
            .defaultAction = {},
            .location = RowBand(m_list, m_surface, m_row, 1, m_list.ColumnCount()) };
    }
    bool DoDefaultAction() override { return false; }

    bool Select() override
    {
        if (!m_surface.Enabled())
            return false;
        m_list.SetListIndex(m_row);
        return true;
    }

    int32_t ChildCount() const override { return IsTable(m_list) ? m_list.ColumnCount() : 0; }
    std::unique_ptr<AccessibleElement> Child(int32_t index) override
    {
        if (index < 0 || index >= ChildCount())
            return nullptr;
        return std::make_unique<CellItem>(m_list, m_surface, m_row, index + 1);
    }

private:
    TolvaList& m_list;
    Surface& m_surface;
    int32_t m_row;
};

} // namespace

AccessibleDescription TolvaList::Describe() const
{
    const int32_t selected = SelectedChild();
    return { .name = m_site.ExtenderName(),
        .role = IsTable(*this) ? AccessibleRole::Table : AccessibleRole::List,
        .state = AccessibleStateOf(m_surface, MouseState {}, true),
        .value = selected == None ? String() : RowName(*this, selected + 1),
        .shortcut = {},
        .defaultAction = {},
        .location = {} };
}

std::unique_ptr<AccessibleElement> TolvaList::Child(int32_t index)
{
    if (index < 0 || index >= m_rowCount)
        return nullptr;
    return std::make_unique<RowItem>(*this, m_surface, index + 1);
}

int32_t TolvaList::SelectedChild() const
{
    return m_listIndex >= 1 && m_listIndex <= m_rowCount ? m_listIndex - 1 : None;
}

int32_t TolvaList::FocusedChild() const
{
    return m_surface.HasFocus() ? SelectedChild() : None;
}

void TolvaList::OnGotFocus()
{
    m_surface.Announce(AccessibleEvent::Focus, FocusedChild());
}

} // namespace tolva
