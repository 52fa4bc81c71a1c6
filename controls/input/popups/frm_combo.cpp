#include "controls/input/popups/frm_combo.h"
#include "core/long_arithmetic.h"
#include "core/twips_canvas.h"

namespace tolva {

namespace {

constexpr int16_t LeftButton = 1;
constexpr int16_t KeyEnter = 13;
constexpr int16_t KeyEscape = 27;
constexpr int16_t KeyPageUp = 33;
constexpr int16_t KeyPageDown = 34;
constexpr int16_t KeyUp = 38;
constexpr int16_t KeyDown = 40;
constexpr float Pixel = 15;
constexpr float ScrollBarWidth = 255;
constexpr int32_t TextLeft = 2; // 30 twips into the row

int32_t Pixels(float twips)
{
    return RoundToLong(twips) / int32_t(Pixel);
}

} // namespace

frmCombo::frmCombo(std::unique_ptr<Surface> window, ControlSite& site)
    : PopupForm(std::move(window), site)
    , m_tsc(Window(), site, u"tsc")
{
    Window().SetBackColor(SystemColor::Window);
    m_tsc->InitProperties();
    m_tsc->SetEventListener(&m_scrollEvents);
    Forget();
}

frmCombo::~frmCombo() = default;

void frmCombo::Forget()
{
    m_items = nullptr;
    m_listIndex = 0;
    m_topIndex = 1;
    m_tsc.Window().SetVisible(false);
}

// The bar stands inside the frame at the right edge, over the ends of the rows.
void frmCombo::OnResize()
{
    Surface& window = Window();
    m_tsc.Window().Move(window.ScaleWidth() - Pixel - ScrollBarWidth, Pixel, ScrollBarWidth, window.ScaleHeight() - 2 * Pixel);
}

void frmCombo::SetScrollBarVisible(bool visible)
{
    m_tsc.Window().SetVisible(visible);
}

// The owner's own ListIndex, shown without a report back.
void frmCombo::SetSelectedItem(int32_t item)
{
    m_listIndex = item;
    if (Visible())
        Repaint();
}

void frmCombo::Setup()
{
    Window().Refresh();
}

int32_t frmCombo::TopIndex()
{
    Repaint();
    return m_topIndex;
}

int32_t frmCombo::ListCount() const
{
    return m_items ? m_items->ListCount() : 0;
}

// A line of the form's font and 30 twips, in twips.
float frmCombo::ItemHeight()
{
    const std::unique_ptr<Canvas> canvas = Window().CreateCanvas(1, 1);
    return float(canvas->MeasureText(u"Wg", ToCanvasFont(Window().GetFont())).height) * Pixel + 2 * Pixel;
}

// Whole items only.
int32_t frmCombo::VisibleItems()
{
    return RoundToLong(Window().ScaleHeight()) / std::max(1, RoundToLong(ItemHeight()));
}

// Selecting redraws the old and the new item where they show. An item below the view moves the
// view down without a repaint (the rest follows at the next one); an item above it moves the
// view up and repaints the list. Then the owner hears of it, also when nothing changed.
void frmCombo::SetListIndex(int32_t index)
{
    int32_t v = index;
    if (v < 1)
        v = 1;
    if (v > ListCount() - 1)
        v = ListCount() - 1;
    const int32_t old = m_listIndex;
    m_listIndex = v;
    DrawItem(old);
    DrawItem(v);
    const int32_t visible = VisibleItems();
    if (v > m_topIndex + visible - 1)
        m_topIndex = v - visible + 1;
    if (v < m_topIndex) {
        m_topIndex = v;
        Repaint();
    }
    AnnounceSelection(Window(), *this);
    Callback(u"SELECT", Currency::FromInt(v));
}

void frmCombo::OnPaint()
{
    Repaint();
}

// The bar takes the range of the hidden items (its events ignored meanwhile), then the rows
// and the frame are drawn in one go.
void frmCombo::Repaint()
{
    const float itemHeight = ItemHeight();
    const int32_t visible = VisibleItems();
    m_updating = true;
    m_tsc->SetMax(ListCount() - visible);
    m_tsc->SetValue(m_topIndex);
    m_tsc->SetLargeChange(visible - 1);
    m_updating = false;

    Surface& window = Window();
    const int32_t width = Pixels(window.ScaleWidth());
    const int32_t height = Pixels(window.ScaleHeight());
    if (width <= 0 || height <= 0)
        return;
    const std::unique_ptr<Canvas> canvas = window.CreateCanvas(width, height);
    canvas->FillRect(0, 0, width, height, TranslateColor(*canvas, SystemColor::Window));
    for (int32_t index = m_topIndex; index <= m_topIndex + visible - 1 && index < ListCount(); ++index)
        DrawItemOn(*canvas, index, itemHeight);
    canvas->Frame({ 0, 0, width, height }, 0x000000);
    window.Present(*canvas, 0, 0, width, height);
}

// One item where it shows, on a canvas of its own; an item outside the view is not drawn.
void frmCombo::DrawItem(int32_t index)
{
    const float itemHeight = ItemHeight();
    if (!ItemShown(index))
        return;
    const int32_t rowHeight = Pixels(itemHeight);
    const int32_t top = 1 + (index - m_topIndex) * rowHeight;
    const int32_t width = Pixels(Window().ScaleWidth() - 2 * Pixel);
    const std::unique_ptr<Canvas> canvas = Window().CreateCanvas(width, rowHeight);
    canvas->SetOrigin({ -1, -top });
    DrawItemOn(*canvas, index, itemHeight);
    Window().Present(*canvas, 1, top, width, rowHeight);
}

// The item's row inside the frame, as wide as the form less 30 twips (the bar, when shown,
// covers its right-hand part), the text 2 pixels in and centred in the row's height.
void frmCombo::DrawItemOn(Canvas& canvas, int32_t index, float itemHeight)
{
    const Rect row = ItemRect(index, itemHeight);
    const bool highlighted = index == m_listIndex;
    DrawingArea area(canvas, row);
    canvas.FillRect(0, 0, row.Width(), row.Height(),
        TranslateColor(canvas, highlighted ? SystemColor::Highlight : SystemColor::Window));
    const CanvasFont font = ToCanvasFont(Window().GetFont());
    const String text = m_items->List(index);
    const TextExtent extent = canvas.MeasureText(text, font);
    canvas.DrawText(TextLeft, (row.Height() - extent.height) / 2, text, font,
        TranslateColor(canvas, highlighted ? SystemColor::HighlightText : SystemColor::WindowText));
}

Rect frmCombo::ItemRect(int32_t index, float itemHeight)
{
    const int32_t rowHeight = Pixels(itemHeight);
    return { 1, 1 + (index - m_topIndex) * rowHeight, 1 + Pixels(Window().ScaleWidth() - 2 * Pixel),
        1 + (index - m_topIndex + 1) * rowHeight };
}

bool frmCombo::ItemShown(int32_t index)
{
    return index >= m_topIndex && index <= m_topIndex + VisibleItems() - 1 && index < ListCount();
}

// Only a bar moved by the user moves the view; the list follows at its next repaint.
void frmCombo::FollowScrollBar()
{
    if (!m_updating)
        m_topIndex = m_tsc->Value();
}

// The item under the pointer follows a held left button, or any move while the owner tracks
// the selection.
void frmCombo::OnMouseMove(int16_t button, int16_t, float, float y)
{
    if (!(button & LeftButton) && !OwnerTracksSelection())
        return;
    const int32_t item = m_topIndex + RoundToLong(y) / std::max(1, RoundToLong(ItemHeight()));
    if (item != m_listIndex)
        SetListIndex(item);
}

void frmCombo::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    OnMouseMove(button, shift, x, y);
}

// The choice went to the owner with the last "SELECT".
void frmCombo::OnMouseUp(int16_t, int16_t, float, float)
{
    UnloadSelf();
}

void frmCombo::OnKeyDown(int16_t& keyCode, int16_t&)
{
    switch (keyCode) {
    case KeyEnter:
        UnloadSelf();
        break;
    case KeyEscape:
        Callback(u"CANCEL");
        break;
    case KeyPageUp:
        SetListIndex(m_listIndex - m_tsc->LargeChange());
        break;
    case KeyPageDown:
        SetListIndex(m_listIndex + m_tsc->LargeChange());
        break;
    case KeyUp:
        SetListIndex(m_listIndex - 1);
        break;
    case KeyDown:
        SetListIndex(m_listIndex + 1);
        break;
    default:
        break;
    }
}

} // namespace tolva
