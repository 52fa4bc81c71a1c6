#include "controls/list/tolva_list.h"
#include "core/automation_error.h"
#include "core/border_style.h"
#include "core/property_bag_array.h"

namespace tolva {

namespace {

// A saved list never has more columns than a form could show; a larger count comes from a
// damaged or hostile store and is refused before anything is allocated for it.
constexpr int32_t MaxStoredColumns = 65535;

int32_t StoredCount(const Variant& value)
{
    const int32_t count = value.ToInt32();
    if (count > MaxStoredColumns)
        throw AutomationError::RunTime(RunTimeError::OutOfMemory);
    return count;
}

} // namespace

void TolvaList::InitProperties()
{
    m_surface.SetEnabled(true);
    m_surface.SetBorderStyle(tkListBorderStyle::tkNormal);
    m_backColorHeader = DefaultBackColorHeader;
    m_backColorHighlight = DefaultBackColorHighlight;
    m_backColorRowA = DefaultBackColorRowA;
    m_backColorRowB = DefaultBackColorRowB;
    m_borderColor = DefaultBorderColor;
    m_foreColorHeader = 0;
    m_foreColorHighlight = 0;
    m_foreColorRowA = 0;
    m_foreColorRowB = 0;
    m_gridColor = DefaultGridColor;
    m_rowHeight = DefaultRowHeight;
    m_gridStyle = tkGridStyles::tkGrid;
    m_selectionTracking = false;
    m_showColumnHeaders = true;
    m_autoRefresh = true;
    m_topIndex = 1;
    m_listIndex = 0;
    m_columnAlignment.Reallocate(0);
    m_columnFormat.Reallocate(0);
    m_columnText.Reallocate(0);
    m_columnWidth.Reallocate(0);
    m_columnCount = 0;
    m_rowCount = 0;
    ResetRowCollections(0);
    SetFont(m_site.AmbientFont());
}

// The saved RowCount comes back without rows: every column gets an empty collection. The font
// goes to the surface without a repaint, since the columns are not restored yet.
void TolvaList::ReadProperties(PropertyBag& bag)
{
    m_columnAlignment.Reallocate(0);
    m_columnFormat.Reallocate(0);
    m_columnText.Reallocate(0);
    m_columnWidth.Reallocate(0);

    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    m_surface.SetFont(bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont());
    m_surface.SetBorderStyle(SurfaceBorderStyle(bag.ReadProperty(u"BorderStyle", int16_t(0)).ToInt16()));
    m_backColorHeader = bag.ReadProperty(u"BackColorHeader", DefaultBackColorHeader).ToColor();
    m_backColorHighlight = bag.ReadProperty(u"BackColorHighlight", DefaultBackColorHighlight).ToColor();
    m_backColorRowA = bag.ReadProperty(u"BackColorRowA", DefaultBackColorRowA).ToColor();
    m_backColorRowB = bag.ReadProperty(u"BackColorRowB", DefaultBackColorRowB).ToColor();
    m_borderColor = bag.ReadProperty(u"BorderColor", DefaultBorderColor).ToColor();
    const int32_t columnCount = StoredCount(bag.ReadProperty(u"ColumnCount", int32_t(0)));

    m_columnAlignment.Assign(ReadArray(bag, u"ColumnAlignment", MaxStoredColumns, &Variant::ToInt32));
    m_columnFormat.Assign(ReadArray(bag, u"ColumnFormat", MaxStoredColumns, &Variant::ToString));
    m_columnText.Assign(ReadArray(bag, u"ColumnText", MaxStoredColumns, &Variant::ToString));
    m_columnWidth.Assign(ReadArray(bag, u"ColumnWidth", MaxStoredColumns, &Variant::ToInt32));

    m_foreColorHeader = bag.ReadProperty(u"ForeColorHeader", OleColor(0)).ToColor();
    m_foreColorHighlight = bag.ReadProperty(u"ForeColorHighlight", OleColor(0)).ToColor();
    m_foreColorRowA = bag.ReadProperty(u"ForeColorRowA", OleColor(0)).ToColor();
    m_foreColorRowB = bag.ReadProperty(u"ForeColorRowB", OleColor(0)).ToColor();
    m_gridColor = bag.ReadProperty(u"GridColor", DefaultGridColor).ToColor();
    const int32_t rowCount = bag.ReadProperty(u"RowCount", int32_t(0)).ToInt32();
    m_rowHeight = bag.ReadProperty(u"RowHeight", DefaultRowHeight).ToInt32();
    m_gridStyle = bag.ReadProperty(u"GridStyle", int32_t(tkGridStyles::tkGrid)).ToInt32();
    m_selectionTracking = bag.ReadProperty(u"SelectionTracking", false).ToBool();
    m_showColumnHeaders = bag.ReadProperty(u"ShowColumnHeaders", true).ToBool();
    m_autoRefresh = bag.ReadProperty(u"AutoRefresh", true).ToBool();

    ResetRowCollections(columnCount);
    m_columnCount = columnCount;
    m_rowCount = rowCount;
}

void TolvaList::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"Font", m_surface.GetFont(), Variant());
    bag.WriteProperty(u"BorderStyle", m_surface.BorderStyle(), int16_t(0));
    bag.WriteProperty(u"BackColorHeader", m_backColorHeader, DefaultBackColorHeader);
    bag.WriteProperty(u"BackColorHighlight", m_backColorHighlight, DefaultBackColorHighlight);
    bag.WriteProperty(u"BackColorRowA", m_backColorRowA, DefaultBackColorRowA);
    bag.WriteProperty(u"BackColorRowB", m_backColorRowB, DefaultBackColorRowB);
    bag.WriteProperty(u"BorderColor", m_borderColor, DefaultBorderColor);
    bag.WriteProperty(u"ColumnCount", m_columnCount, int32_t(0));
    WriteArray(bag, u"ColumnAlignment", m_columnAlignment.Elements());
    WriteArray(bag, u"ColumnFormat", m_columnFormat.Elements());
    WriteArray(bag, u"ColumnText", m_columnText.Elements());
    WriteArray(bag, u"ColumnWidth", m_columnWidth.Elements());
    bag.WriteProperty(u"ForeColorHeader", m_foreColorHeader, OleColor(0));
    bag.WriteProperty(u"ForeColorHighlight", m_foreColorHighlight, OleColor(0));
    bag.WriteProperty(u"ForeColorRowA", m_foreColorRowA, OleColor(0));
    bag.WriteProperty(u"ForeColorRowB", m_foreColorRowB, OleColor(0));
    bag.WriteProperty(u"GridColor", m_gridColor, DefaultGridColor);
    bag.WriteProperty(u"RowCount", m_rowCount, int32_t(0));
    bag.WriteProperty(u"RowHeight", m_rowHeight, DefaultRowHeight);
    bag.WriteProperty(u"GridStyle", m_gridStyle, int32_t(tkGridStyles::tkGrid));
    bag.WriteProperty(u"SelectionTracking", m_selectionTracking, false);
    bag.WriteProperty(u"ShowColumnHeaders", m_showColumnHeaders, true);
    bag.WriteProperty(u"AutoRefresh", m_autoRefresh, true);
}

} // namespace tolva
