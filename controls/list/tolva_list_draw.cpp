#include "controls/list/tolva_list.h"
#include "core/long_arithmetic.h"
#include "core/twips_canvas.h"
#include <algorithm>
#include <cmath>

namespace tolva {

namespace {

constexpr int32_t OnePixel = 15;

// The canvas never grows past this many pixels, whatever size the container gives.
constexpr int32_t MaxBufferPixels = 16384;

// Twips to the nearest pixel, held within a range where pixel arithmetic cannot overflow.
int32_t ToPixels(double twips, int32_t twipsPerPixel)
{
    const double pixels = std::nearbyint(twips / std::max(1, twipsPerPixel));
    if (!(pixels > -1e8))
        return -100000000;
    return int32_t(std::min(pixels, 1e8));
}

} // namespace

int32_t TolvaList::PixelX(double twips) const
{
    return ToPixels(twips, m_surface.TwipsPerPixelX());
}

int32_t TolvaList::PixelY(double twips) const
{
    return ToPixels(twips, m_surface.TwipsPerPixelY());
}

// A text's width in whole twips, as the surface measures it in its font.
int32_t TolvaList::TextWidth(Canvas& canvas, StringView text, const CanvasFont& font) const
{
    return CheckedMultiply(canvas.MeasureText(text, font).width, m_surface.TwipsPerPixelX());
}

// The whole list, composed off screen and copied to the control in one go. Only the rows on
// screen are read; nothing at all is drawn while AutoRefresh is off.
void TolvaList::RedrawList()
{
    if (!m_autoRefresh)
        return;
    const int32_t width = std::clamp(PixelX(m_surface.ScaleWidth()), 1, MaxBufferPixels);
    const int32_t height = std::clamp(PixelY(m_surface.ScaleHeight()), 1, MaxBufferPixels);
    Canvas& canvas = m_buffer.Sized(width, height);
    const CanvasFont font = ToCanvasFont(m_surface.GetFont());

    DrawHeader(canvas, font);
    PrintPosition print { DrawRowBands(canvas), {} };
    int32_t count = VisibleRows();
    if (m_rowCount < CheckedAdd(m_topIndex, count))
        count = CheckedAdd(CheckedSubtract(m_rowCount, m_topIndex), 1);
    for (int32_t i = 0; i < count; ++i)
        DrawRow(m_topIndex + i, canvas, font, print);
    canvas.Line(0, 0, 0, height, TranslateColor(canvas, m_borderColor));
    if (m_gridStyle != tkGridStyles::tkNone)
        DrawGrid(canvas);
    m_surface.Present(canvas, 0, 0, width, height);
}

// The header strip, drawn within its own height: its background, a rule on its last line, and
// each caption centred on its column whatever the column's alignment, not clipped to the column.
// Without headers the strip has no height and shows nothing.
void TolvaList::DrawHeader(Canvas& canvas, const CanvasFont& font)
{
    const int32_t headerHeight = HeaderHeight();
    const int32_t width = PixelX(m_surface.ScaleWidth());
    const DrawingArea strip(canvas, Rect { 0, 0, width, PixelY(headerHeight) }, DrawingArea::KeepOrigin);
    canvas.FillRect(0, 0, width, PixelY(headerHeight), TranslateColor(canvas, m_backColorHeader));
    const int32_t rule = PixelY(headerHeight - OnePixel);
    canvas.Line(0, rule, width, rule, TranslateColor(canvas, m_borderColor));
    const ColorRef text = TranslateColor(canvas, m_foreColorHeader);
    const int32_t textTop = PixelY(2 * OnePixel);
    int32_t x = OnePixel;
    for (int32_t col = 1; col <= m_columnCount; ++col) {
        const int32_t columnWidth = m_columnWidth[col];
        const String& caption = m_columnText[col];
        const int32_t left = CheckedSubtract(CheckedAdd(x, columnWidth / 2), TextWidth(canvas, caption, font) / 2);
        canvas.DrawText(PixelX(left), textTop, caption, font, text);
        x = CheckedAdd(x, columnWidth);
    }
}

// Bands follow the absolute row number: even rows BackColorRowA, odd rows BackColorRowB. They
// fill the whole body, below the last row too; the selected row gets the highlight band. Boxes
// include both corners, as the picture box fills them. Returns where the last box ended, which
// is where the next print goes unless it is placed.
int32_t TolvaList::DrawRowBands(Canvas& canvas)
{
    const int32_t headerHeight = HeaderHeight();
    const int32_t rowHeight = m_rowHeight;
    const double scaleWidth = m_surface.ScaleWidth();
    const double scaleHeight = m_surface.ScaleHeight();
    const bool evenTop = m_topIndex % 2 == 0;
    const ColorRef first = TranslateColor(canvas, evenTop ? m_backColorRowA : m_backColorRowB);
    const ColorRef second = TranslateColor(canvas, evenTop ? m_backColorRowB : m_backColorRowA);
    double lastRight = 0;
    const auto box = [&](double x1, double y1, double x2, double y2, ColorRef color) {
        canvas.FillRect(PixelX(x1), PixelY(y1), PixelX(x2) + 1, PixelY(y2) + 1, color);
        lastRight = x2;
    };

    box(0, headerHeight, scaleWidth, scaleHeight - OnePixel, first);
    const int32_t visible = VisibleRows();
    int32_t y = CheckedAdd(headerHeight, rowHeight);
    for (int64_t i = 1; i <= visible; i += 2) {
        box(0, y, scaleWidth - OnePixel, CheckedAdd(y, rowHeight), second);
        y = CheckedAdd(y, CheckedMultiply(2, rowHeight));
    }
    if (m_topIndex <= m_listIndex && m_listIndex <= CheckedAdd(m_topIndex, visible)) {
        const int32_t top = CheckedAdd(headerHeight, CheckedMultiply(CheckedSubtract(m_listIndex, m_topIndex), rowHeight));
        box(0, top, scaleWidth - OnePixel, CheckedAdd(top, rowHeight), TranslateColor(canvas, m_backColorHighlight));
    }
    return RoundToLong(lastRight);
}

// One row's cells, each placed by its column's alignment and printed unclipped, so that a long
// text runs on under the next column's. A column of no known alignment prints where the
// previous print ended. Every row is printed in ForeColorRowA, the selected one in
// ForeColorHighlight: rows are told apart by their bands.
void TolvaList::DrawRow(int32_t row, Canvas& canvas, const CanvasFont& font, PrintPosition& print)
{
    const ColorRef color = TranslateColor(canvas, row == m_listIndex ? m_foreColorHighlight : m_foreColorRowA);
    const int32_t top = CheckedAdd(
        CheckedAdd(HeaderHeight(), CheckedMultiply(CheckedSubtract(row, m_topIndex), m_rowHeight)), OnePixel);
    int32_t x = 0;
    for (int32_t col = 1; col <= m_columnCount; ++col) {
        String cell = RowText(row, col);
        const int32_t columnWidth = m_columnWidth[col];
        switch (m_columnAlignment[col]) {
        case tkColumnAlignment::tkColumnLeft:
            print.left = CheckedAdd(x, 3 * OnePixel);
            break;
        case tkColumnAlignment::tkColumnCenter:
            print.left = CheckedSubtract(CheckedAdd(x, columnWidth / 2), TextWidth(canvas, cell, font) / 2);
            break;
        case tkColumnAlignment::tkColumnRight:
            print.left = CheckedSubtract(
                CheckedSubtract(CheckedAdd(x, columnWidth), TextWidth(canvas, cell, font)), 3 * OnePixel);
            break;
        default:
            print.left = CheckedAdd(print.left, TextWidth(canvas, print.text, font));
            break;
        }
        canvas.DrawText(PixelX(print.left), PixelY(top), cell, font, color);
        print.text = std::move(cell);
        x = CheckedAdd(x, columnWidth);
    }
}

// Column rules at each column's right edge, a second rule two pixels into the last column in
// the ledger style, and a rule under every visible row position, below the last row too.
void TolvaList::DrawGrid(Canvas& canvas)
{
    const int32_t headerHeight = HeaderHeight();
    const double scaleWidth = m_surface.ScaleWidth();
    const double scaleHeight = m_surface.ScaleHeight();
    const ColorRef grid = TranslateColor(canvas, m_gridColor);
    const int32_t ruleTop = PixelY(headerHeight);
    const int32_t ruleBottom = PixelY(scaleHeight - OnePixel);
    int32_t x = 0;
    for (int32_t col = 1; col <= m_columnCount; ++col) {
        x = CheckedAdd(x, m_columnWidth[col]);
        canvas.Line(PixelX(x), ruleTop, PixelX(x), ruleBottom, grid);
    }
    if (m_gridStyle == tkGridStyles::tkBalance && m_columnCount > 0) {
        const int32_t second = CheckedAdd(CheckedSubtract(x, m_columnWidth[m_columnCount]), 2 * OnePixel);
        canvas.Line(PixelX(second), ruleTop, PixelX(second), ruleBottom, grid);
    }
    const int32_t visible = VisibleRows();
    const int32_t right = PixelX(scaleWidth - OnePixel);
    for (int32_t r = 1; r <= visible; ++r) {
        const int32_t y = PixelY(CheckedAdd(CheckedMultiply(r, m_rowHeight), headerHeight));
        canvas.Line(0, y, right, y, grid);
    }
}

} // namespace tolva
