#pragma once
#include "core/paint_buffer.h"
#include "controls/list/tk_rows.h"
#include "controls/list/tolva_list_enums.h"
#include "controls/list/tolva_list_events.h"
#include "controls/scroll/tolva_scroll.h"
#include "core/accessibility.h"
#include "core/control_site.h"
#include "core/embedded_control.h"
#include "core/indexed_array.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "core/variant.h"
#include <memory>
#include <optional>

namespace tolva {

class Canvas;
struct CanvasFont;

// A multi-column list that looks like a list box, a grid or a ledger. Cells are kept column by
// column: column c's items hold its texts in row order, and the hidden column 0 holds each row's
// RowData. Only the rows on screen are ever drawn. The scroll bar tscList, embedded at the right
// edge, is driven through its public members and followed through its Change and Scroll events.
class TolvaList final : public AccessibleElement, private SurfaceListener {
public:
    TolvaList(Surface& surface, ControlSite& site);
    ~TolvaList() override;
    TolvaList(const TolvaList&) = delete;
    TolvaList& operator=(const TolvaList&) = delete;

    void SetEventListener(TolvaListEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle. Columns are saved as four arrays; rows are never saved.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Columns and rows. Every mutation ends with a repaint unless its comment says otherwise.
    void AddColumn(StringView caption, int32_t alignment = tkColumnAlignment::tkColumnLeft, int32_t width = 1200);
    // Inserts a row before row `before` in every column (appends when it is out of range) and
    // sets NewIndex: the new last row for -1, `before` itself for anything else.
    void AddRow(int32_t before = -1);
    void RemoveRow(int32_t row);
    // Shifts the cells of the later columns down and releases the last column's cells; the
    // count and the column arrays stay, nothing is notified or repainted.
    void RemoveColumn(int32_t column);
    // No columns and no rows; the column arrays are kept, nothing is repainted.
    void ColumnClear();
    // No rows; the columns stay and TopIndex is kept.
    void Clear();

    // The only member that checks its own indices: out of range is error 0x800455F1 from
    // "RowText". The setter checks nothing beyond what the collections and arrays refuse.
    String RowText(const Variant& row, const Variant& column) const;
    void SetRowText(const Variant& row, const Variant& column, StringView text);
    Variant RowData(const Variant& row) const;
    void SetRowData(const Variant& row, const Variant& value); // notifies but does not repaint

    // The column arrays, read and written at Index with no check beyond their bounds.
    String ColumnText(int16_t index) const;
    void SetColumnText(int16_t index, StringView text);
    int32_t ColumnAlignment(int16_t index) const;
    void SetColumnAlignment(int16_t index, int32_t alignment);
    String ColumnFormat(int16_t index) const;
    void SetColumnFormat(int16_t index, StringView format);
    int32_t ColumnWidth(int16_t index) const;
    void SetColumnWidth(int16_t index, int32_t width);

    int32_t RowCount() const { return m_rowCount; }
    int32_t ColumnCount() const { return m_columnCount; }
    int32_t NewIndex() const { return m_newIndex; }
    void SetNewIndex(int32_t index) { m_newIndex = index; }
    int32_t ListIndex() const { return m_listIndex; }
    void SetListIndex(int32_t index); // clamped to 1..RowCount; SelectionChanged on a change
    int32_t TopIndex() const { return m_topIndex; }
    void SetTopIndex(int32_t index); // stored as it is; the scroll bar is not moved
    int32_t RowHeight() const { return m_rowHeight; }
    void SetRowHeight(int32_t height); // at least 90 twips

    // Appearance.
    bool Enabled() const;
    void SetEnabled(bool enabled);
    Font GetFont() const;
    void SetFont(const Font& font);
    int32_t BorderStyle() const;
    void SetBorderStyle(int32_t style);
    OleColor BackColorHeader() const { return m_backColorHeader; }
    void SetBackColorHeader(OleColor color);
    OleColor BackColorHighlight() const { return m_backColorHighlight; }
    void SetBackColorHighlight(OleColor color);
    OleColor BackColorRowA() const { return m_backColorRowA; }
    void SetBackColorRowA(OleColor color);
    OleColor BackColorRowB() const { return m_backColorRowB; }
    void SetBackColorRowB(OleColor color);
    OleColor BorderColor() const { return m_borderColor; }
    void SetBorderColor(OleColor color);
    OleColor ForeColorHeader() const { return m_foreColorHeader; }
    void SetForeColorHeader(OleColor color);
    OleColor ForeColorHighlight() const { return m_foreColorHighlight; }
    void SetForeColorHighlight(OleColor color);
    OleColor ForeColorRowA() const { return m_foreColorRowA; }
    void SetForeColorRowA(OleColor color);
    OleColor ForeColorRowB() const { return m_foreColorRowB; } // kept and saved, never drawn
    void SetForeColorRowB(OleColor color);
    OleColor GridColor() const { return m_gridColor; }
    void SetGridColor(OleColor color);
    int32_t GridStyle() const { return m_gridStyle; }
    void SetGridStyle(int32_t style);
    bool ShowColumnHeaders() const { return m_showColumnHeaders; }
    void SetShowColumnHeaders(bool show);
    bool SelectionTracking() const { return m_selectionTracking; }
    void SetSelectionTracking(bool tracking);
    // While False nothing is drawn at all; Refresh or a later change draws again.
    bool AutoRefresh() const { return m_autoRefresh; }
    void SetAutoRefresh(bool autoRefresh);

    // Methods.
    void Refresh();
    void AboutBox();

    // The bookkeeping of the vertical position, in twips and rows.
    int32_t HeaderHeight() const;
    int32_t VisibleRows() const;

    // A list of one column reads as a list of list items; with more columns it is a table of rows
    // whose cells are their items. Rows are made when asked for; the selected row is the value.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override { return false; }
    int32_t ChildCount() const override { return m_rowCount; }
    std::unique_ptr<AccessibleElement> Child(int32_t index) override;
    int32_t FocusedChild() const override;
    int32_t SelectedChild() const override;

    // Storage held by the cells, for measurements.
    size_t CellMemoryBytes() const;
    // The embedded scroll bar, for the platform and tests.
    const TolvaScroll& ScrollBar() const { return *m_tscList; }

    static constexpr OleColor DefaultBackColorHeader = 0xDEE7EF;
    static constexpr OleColor DefaultBackColorHighlight = 0xC6F3FF;
    static constexpr OleColor DefaultBackColorRowA = 0xFFFFFF;
    static constexpr OleColor DefaultBackColorRowB = 0xEFF7F7;
    static constexpr OleColor DefaultBorderColor = 0xB5BEC6;
    static constexpr OleColor DefaultGridColor = 0xCECFCE;
    static constexpr int32_t DefaultRowHeight = 240;

private:
    // tscList reports to the list as to any host.
    class ScrollEvents final : public TolvaScrollEvents {
    public:
        explicit ScrollEvents(TolvaList& owner)
            : m_owner(owner)
        { }
        void Change() override;
        void Scroll() override;

    private:
        TolvaList& m_owner;
    };

    // Surface notifications.
    void OnPaint() override;
    void OnResize() override;
    void OnShow() override;
    void OnAmbientChanged(StringView name) override;
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override;
    void OnKeyPress(int16_t& keyAscii) override;
    void OnKeyUp(int16_t& keyCode, int16_t& shift) override;
    void OnGotFocus() override;

    // Model bookkeeping.
    tkRows& RowsOf(const Variant& column) const;
    void ResetRowCollections(int32_t upperBound);
    void SetRowCount(int32_t count);
    void SetColumnCount(int32_t count);
    void EnsureRowVisible(int32_t index);
    void UpdateScrollRange();
    void ShowHandler();
    void SelectRowAt(int16_t button, int16_t shift, float x, float y);

    // Drawing, in this order within RedrawList.
    void RedrawList();
    void DrawHeader(Canvas& canvas, const CanvasFont& font);
    // Where the last print ended: its left edge and its text, in twips.
    struct PrintPosition {
        int32_t left = 0;
        String text;
    };
    int32_t DrawRowBands(Canvas& canvas);
    void DrawRow(int32_t row, Canvas& canvas, const CanvasFont& font, PrintPosition& print);
    void DrawGrid(Canvas& canvas);
    int32_t PixelX(double twips) const;
    int32_t PixelY(double twips) const;
    int32_t TextWidth(Canvas& canvas, StringView text, const CanvasFont& font) const;

    static inline TolvaListEvents s_noEvents;

    Surface& m_surface;
    PaintBuffer m_buffer { m_surface };
    ControlSite& m_site;
    TolvaListEvents* m_events = &s_noEvents;

    // Columns: four parallel arrays, and the items of each column 0..ColumnCount (0 the hidden
    // one); a column whose items RemoveColumn released holds none.
    IndexedArray<String> m_columnText;
    IndexedArray<int32_t> m_columnAlignment;
    IndexedArray<int32_t> m_columnWidth;
    IndexedArray<String> m_columnFormat;
    IndexedArray<std::unique_ptr<tkRows>> m_rows;

    int32_t m_columnCount = 0;
    int32_t m_rowCount = 0;
    int32_t m_listIndex = 0;
    int32_t m_topIndex = 1;
    int32_t m_newIndex = 0;
    int32_t m_rowHeight = DefaultRowHeight;
    bool m_showColumnHeaders = true;
    bool m_selectionTracking = false;
    bool m_autoRefresh = true;
    int32_t m_gridStyle = tkGridStyles::tkGrid;
    OleColor m_backColorHeader = DefaultBackColorHeader;
    OleColor m_backColorHighlight = DefaultBackColorHighlight;
    OleColor m_backColorRowA = DefaultBackColorRowA;
    OleColor m_backColorRowB = DefaultBackColorRowB;
    OleColor m_borderColor = DefaultBorderColor;
    OleColor m_foreColorHeader = 0;
    OleColor m_foreColorHighlight = 0;
    OleColor m_foreColorRowA = 0;
    OleColor m_foreColorRowB = 0;
    OleColor m_gridColor = DefaultGridColor;

    // The header's text height depends on the font alone; measuring it draws nothing, but costs
    // a canvas, so it is kept for the font it was measured with.
    struct MeasuredHeader {
        Font font;
        int32_t twipsPerPixel = 0;
        int32_t textHeight = 0;
    };
    mutable std::optional<MeasuredHeader> m_measuredHeader;

    ScrollEvents m_scrollEvents { *this }; // outlives the scroll bar that calls it
    EmbeddedControl<TolvaScroll> m_tscList;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
