#include "controls/list/tolva_list.h"
#include "core/border_style.h"
#include "core/long_arithmetic.h"
#include "core/twips_canvas.h"
#include <algorithm>

namespace tolva {

namespace {

constexpr float ScrollBarWidth = 255; // tscList's design width, as wide as its arrows
constexpr int32_t MinRowHeight = 90;
constexpr int32_t HeaderPadding = 75;

} // namespace

TolvaList::TolvaList(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
    , m_tscList(surface, site, u"tscList")
{
    ResetRowCollections(0);
    m_tscList.Window().Move(0, 0, ScrollBarWidth, ScrollBarWidth);
    m_tscList.Window().SetVisible(false);
    m_tscList->SetEventListener(&m_scrollEvents);
    m_surface.SetListener(this);
}

TolvaList::~TolvaList()
{
    m_surface.SetListener(nullptr);
    m_tscList->SetEventListener(nullptr);
}

// Properties.
bool TolvaList::Enabled() const
{
    return m_surface.Enabled();
}

void TolvaList::SetEnabled(bool enabled)
{
    m_surface.SetEnabled(enabled);
    m_site.PropertyChanged(u"Enabled");
    RedrawList();
}

Font TolvaList::GetFont() const
{
    return m_surface.GetFont();
}

void TolvaList::SetFont(const Font& font)
{
    m_surface.SetFont(font);
    m_site.PropertyChanged(u"Font");
    RedrawList();
}

int32_t TolvaList::BorderStyle() const
{
    return m_surface.BorderStyle();
}

void TolvaList::SetBorderStyle(int32_t style)
{
    m_surface.SetBorderStyle(SurfaceBorderStyle(style));
    m_site.PropertyChanged(u"BorderStyle");
    RedrawList();
}

namespace {

// The setters of the look: store, notify under the property's name, repaint.
template <class T> void Assign(T& member, T value, ControlSite& site, StringView key)
{
    member = value;
    site.PropertyChanged(key);
}

} // namespace

void TolvaList::SetBackColorHeader(OleColor color)
{
    Assign(m_backColorHeader, color, m_site, u"BackColorHeader");
    RedrawList();
}

void TolvaList::SetBackColorHighlight(OleColor color)
{
    Assign(m_backColorHighlight, color, m_site, u"BackColorHighlight");
    RedrawList();
}

void TolvaList::SetBackColorRowA(OleColor color)
{
    Assign(m_backColorRowA, color, m_site, u"BackColorRowA");
    RedrawList();
}

void TolvaList::SetBackColorRowB(OleColor color)
{
    Assign(m_backColorRowB, color, m_site, u"BackColorRowB");
    RedrawList();
}

void TolvaList::SetBorderColor(OleColor color)
{
    Assign(m_borderColor, color, m_site, u"BorderColor");
    RedrawList();
}

void TolvaList::SetForeColorHeader(OleColor color)
{
    Assign(m_foreColorHeader, color, m_site, u"ForeColorHeader");
    RedrawList();
}

void TolvaList::SetForeColorHighlight(OleColor color)
{
    Assign(m_foreColorHighlight, color, m_site, u"ForeColorHighlight");
    RedrawList();
}

void TolvaList::SetForeColorRowA(OleColor color)
{
    Assign(m_foreColorRowA, color, m_site, u"ForeColorRowA");
    RedrawList();
}

void TolvaList::SetForeColorRowB(OleColor color)
{
    Assign(m_foreColorRowB, color, m_site, u"ForeColorRowB");
    RedrawList();
}

void TolvaList::SetGridColor(OleColor color)
{
    Assign(m_gridColor, color, m_site, u"GridColor");
    RedrawList();
}

void TolvaList::SetGridStyle(int32_t style)
{
    Assign(m_gridStyle, style, m_site, u"GridStyle");
    RedrawList();
}

void TolvaList::SetShowColumnHeaders(bool show)
{
    Assign(m_showColumnHeaders, show, m_site, u"ShowColumnHeaders");
    RedrawList();
}

void TolvaList::SetSelectionTracking(bool tracking)
{
    Assign(m_selectionTracking, tracking, m_site, u"SelectionTracking");
    RedrawList();
}

void TolvaList::SetAutoRefresh(bool autoRefresh)
{
    Assign(m_autoRefresh, autoRefresh, m_site, u"AutoRefresh");
    RedrawList();
}

void TolvaList::SetRowHeight(int32_t height)
{
    Assign(m_rowHeight, std::max(height, MinRowHeight), m_site, u"RowHeight");
    RedrawList();
}

void TolvaList::SetTopIndex(int32_t index)
{
    Assign(m_topIndex, index, m_site, u"TopIndex");
    RedrawList();
}

// The row is clamped into 1..RowCount, testing the lower end first, so that an empty list takes
// 1 for anything below 1 and 0 for anything else.
void TolvaList::SetListIndex(int32_t index)
{
    if (index < 1)
        index = 1;
    else if (index > m_rowCount)
        index = m_rowCount;
    if (index == m_listIndex)
        return;
    m_listIndex = index;
    m_events->SelectionChanged();
    AnnounceSelection(m_surface, *this);
    m_site.PropertyChanged(u"ListIndex");
    EnsureRowVisible(m_listIndex);
    RedrawList();
}

// Methods.
void TolvaList::Refresh()
{
    RedrawList();
}

void TolvaList::AboutBox()
{
    m_site.ShowAboutBox();
}

// The vertical bookkeeping.
int32_t TolvaList::HeaderHeight() const
{
    if (!m_showColumnHeaders)
        return 0;
    const Font font = m_surface.GetFont();
    const int32_t twipsPerPixel = m_surface.TwipsPerPixelY();
    if (!m_measuredHeader || m_measuredHeader->font != font || m_measuredHeader->twipsPerPixel != twipsPerPixel) {
        const int32_t pixels = m_surface.CreateCanvas(1, 1)->MeasureText(u"Ag", ToCanvasFont(font)).height;
        m_measuredHeader = MeasuredHeader { font, twipsPerPixel, pixels * twipsPerPixel };
    }
    return RoundToLong(double(m_measuredHeader->textHeight) + HeaderPadding);
}

// Counts a partly visible last row.
int32_t TolvaList::VisibleRows() const
{
    if (m_rowHeight <= 0)
        return 1;
    return CheckedAdd(IntegerDivide(double(m_surface.ScaleHeight()) - HeaderHeight(), m_rowHeight), 1);
}

// A selected row is kept on one of the fully visible rows.
void TolvaList::EnsureRowVisible(int32_t index)
{
    const int32_t visible = VisibleRows();
    if (index < m_topIndex)
        m_topIndex = index;
    else if (index >= CheckedSubtract(CheckedAdd(m_topIndex, visible), 1))
        m_topIndex = CheckedAdd(CheckedSubtract(m_listIndex, visible), 2);
    else
        return;
    m_tscList->SetValue(m_topIndex);
}

void TolvaList::UpdateScrollRange()
{
    const int32_t visible = VisibleRows();
    if (m_rowCount >= visible) {
        m_tscList.Window().SetVisible(true);
        m_tscList->SetMax(CheckedAdd(CheckedSubtract(m_rowCount, visible), 1));
        m_tscList->SetValue(m_topIndex);
        m_tscList->SetLargeChange(visible);
    } else {
        m_tscList.Window().SetVisible(false);
    }
}

void TolvaList::ShowHandler()
{
    UpdateScrollRange();
    RedrawList();
}

// Surface notifications.
void TolvaList::OnPaint()
{
    RedrawList();
}

void TolvaList::OnAmbientChanged(StringView)
{
    RedrawList();
}

void TolvaList::OnShow()
{
    ShowHandler();
}

// The scroll bar lies over the right edge of the body, below the header.
void TolvaList::OnResize()
{
    const float header = float(HeaderHeight());
    Surface& bar = m_tscList.Window();
    bar.Move(m_surface.ScaleWidth() - bar.Width(), header, bar.Width(), std::max(0.0f, m_surface.ScaleHeight() - header));
    ShowHandler();
}

void TolvaList::ScrollEvents::Change()
{
    m_owner.SetTopIndex(m_owner.m_tscList->Value());
}

void TolvaList::ScrollEvents::Scroll()
{
    m_owner.SetTopIndex(m_owner.m_tscList->Value());
}

} // namespace tolva
