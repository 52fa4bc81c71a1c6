#include "controls/list/tolva_list.h"
#include "core/automation_error.h"
#include "core/long_arithmetic.h"

namespace tolva {

namespace {

constexpr int32_t RowTextOutOfRange = int32_t(0x80040000u + 22001u);

} // namespace

// The items of a column, as the array of collections hands them out: an index outside the
// array, and a column whose items RemoveColumn released, are Subscript out of range.
tkRows& TolvaList::RowsOf(const Variant& column) const
{
    const std::unique_ptr<tkRows>& rows = m_rows[column.ToInt32()];
    if (!rows)
        throw AutomationError::RunTime(RunTimeError::SubscriptOutOfRange);
    return *rows;
}

void TolvaList::ResetRowCollections(int32_t upperBound)
{
    m_rows.Reallocate(upperBound);
    for (int32_t c = 0; c <= upperBound; ++c)
        m_rows[c] = std::make_unique<tkRows>();
}

void TolvaList::SetRowCount(int32_t count)
{
    m_rowCount = count;
    m_site.PropertyChanged(u"RowCount");
}

void TolvaList::SetColumnCount(int32_t count)
{
    m_columnCount = count;
    m_site.PropertyChanged(u"ColumnCount");
}

// The new column gets one item more than there are rows: the spare at its end is never
// addressed. The column arrays grow with the count, except that arrays left longer by an earlier
// ColumnClear are reused from the second column on; a reused slot keeps its format.
void TolvaList::AddColumn(StringView caption, int32_t alignment, int32_t width)
{
    SetColumnCount(CheckedAdd(m_columnCount, 1));
    if (m_rowCount == 0 || m_columnCount > m_rows.UpperBound())
        m_rows.Preserve(m_columnCount);
    auto rows = std::make_unique<tkRows>();
    for (int32_t i = 0; i <= m_rowCount; ++i)
        rows->Add(u"", -1);
    m_rows[m_columnCount] = std::move(rows);

    const auto grow = [this](auto& array) {
        if (!(m_columnCount > 1 && m_columnCount <= array.UpperBound()))
            array.Preserve(m_columnCount);
    };
    grow(m_columnText);
    grow(m_columnAlignment);
    grow(m_columnWidth);
    grow(m_columnFormat);
    m_columnText[m_columnCount] = String(caption);
    m_columnAlignment[m_columnCount] = alignment;
    m_columnWidth[m_columnCount] = width;
    RedrawList();
}

// Every column gets the new item, the hidden one first; a column without items stops the row
// half-way, as far as it came. The picture is redrawn only when the new last row can be on
// screen.
void TolvaList::AddRow(int32_t before)
{
    for (int32_t c = 0; c <= m_columnCount; ++c)
        RowsOf(c).Add(u"", before);
    SetRowCount(CheckedAdd(m_rowCount, 1));
    m_newIndex = before == -1 ? m_rowCount : before;
    UpdateScrollRange();
    if (CheckedSubtract(m_rowCount, m_topIndex) < VisibleRows())
        RedrawList();
}

void TolvaList::RemoveRow(int32_t row)
{
    for (int32_t c = 0; c <= m_columnCount; ++c)
        RowsOf(c).Remove(row);
    SetRowCount(CheckedSubtract(m_rowCount, 1));
    if (m_listIndex > m_rowCount)
        m_listIndex = m_rowCount; // no SelectionChanged for this
    UpdateScrollRange();
    if (row < CheckedAdd(m_topIndex, VisibleRows()))
        RedrawList();
}

// Only the cells move: the count and the column arrays stay as they were, and the last column
// is left without items. Clients rebuild the columns to drop one.
void TolvaList::RemoveColumn(int32_t column)
{
    for (int64_t i = column; i <= int64_t(m_columnCount) - 1; ++i)
        m_rows[i] = std::move(m_rows[i + 1]);
    m_rows[m_columnCount].reset();
}

void TolvaList::ColumnClear()
{
    SetColumnCount(0);
    SetRowCount(0);
    ResetRowCollections(0);
}

// With no columns the items are kept and only the count goes back to 0.
void TolvaList::Clear()
{
    if (m_columnCount > 0)
        ResetRowCollections(m_columnCount);
    SetRowCount(0);
    m_listIndex = 0;
    UpdateScrollRange();
    RedrawList();
}

// The indices are compared as numbers, then the column is an array index and the row a
// collection index (where a text is a key).
String TolvaList::RowText(const Variant& row, const Variant& column) const
{
    const double r = row.ToDouble();
    const double c = column.ToDouble();
    if (!(r <= m_rowCount && r > 0 && c <= m_columnCount && c > 0))
        throw AutomationError(RowTextOutOfRange, u"RowText", u"Subscript Out Of Range");
    const tkRows& rows = RowsOf(column);
    return String(rows.Data(rows.Item(row)));
}

void TolvaList::SetRowText(const Variant& row, const Variant& column, StringView text)
{
    tkRows& rows = RowsOf(column);
    rows.SetData(rows.Item(row), text);
    m_site.PropertyChanged(u"RowText");
    RedrawList();
}

Variant TolvaList::RowData(const Variant& row) const
{
    const tkRows& hidden = RowsOf(int32_t(0));
    return Variant(hidden.Attr(hidden.Item(row)));
}

void TolvaList::SetRowData(const Variant& row, const Variant& value)
{
    const int32_t attr = value.ToInt32();
    tkRows& hidden = RowsOf(int32_t(0));
    hidden.SetAttr(hidden.Item(row), attr);
    m_site.PropertyChanged(u"RowData");
}

String TolvaList::ColumnText(int16_t index) const
{
    return m_columnText[index];
}

void TolvaList::SetColumnText(int16_t index, StringView text)
{
    m_columnText[index] = String(text);
    m_site.PropertyChanged(u"ColumnText");
    RedrawList();
}

int32_t TolvaList::ColumnAlignment(int16_t index) const
{
    return m_columnAlignment[index];
}

void TolvaList::SetColumnAlignment(int16_t index, int32_t alignment)
{
    m_columnAlignment[index] = alignment;
    m_site.PropertyChanged(u"ColumnAlignment");
    RedrawList();
}

String TolvaList::ColumnFormat(int16_t index) const
{
    return m_columnFormat[index];
}

void TolvaList::SetColumnFormat(int16_t index, StringView format)
{
    m_columnFormat[index] = String(format);
    m_site.PropertyChanged(u"ColumnFormat");
    RedrawList();
}

int32_t TolvaList::ColumnWidth(int16_t index) const
{
    return m_columnWidth[index];
}

void TolvaList::SetColumnWidth(int16_t index, int32_t width)
{
    m_columnWidth[index] = width;
    m_site.PropertyChanged(u"ColumnWidth");
    RedrawList();
}

size_t TolvaList::CellMemoryBytes() const
{
    size_t bytes = 0;
    for (int32_t c = 0; c <= m_rows.UpperBound(); ++c)
        if (m_rows[c])
            bytes += m_rows[c]->MemoryBytes();
    return bytes;
}

} // namespace tolva
