#include "controls/list/tolva_list.h"
#include "core/long_arithmetic.h"

namespace tolva {

namespace {

namespace Key {
constexpr int16_t PageUp = 33;
constexpr int16_t PageDown = 34;
constexpr int16_t End = 35;
constexpr int16_t Home = 36;
constexpr int16_t Up = 38;
constexpr int16_t Down = 40;
}

constexpr int16_t LeftButton = 1;

} // namespace

// A left press takes the focus and selects the row under the pointer. There is no hit test of
// the header, the empty space below the rows or the columns: the row number is worked out from
// Y alone and the ListIndex setter clamps it.
void TolvaList::SelectRowAt(int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton) {
        m_surface.SetFocus();
        const int32_t row = CheckedAdd(m_topIndex, IntegerDivide(double(y) - HeaderHeight(), m_rowHeight));
        if (row != m_listIndex)
            SetListIndex(row);
    }
    m_events->MouseDown(button, shift, x, y);
}

void TolvaList::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    SelectRowAt(button, shift, x, y);
}

// Dragging with the left button alone tracks the selection: each move is a press again, and
// raises MouseDown again.
void TolvaList::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    if (button == LeftButton && m_selectionTracking)
        SelectRowAt(button, shift, x, y);
    m_events->MouseMove(button, shift, x, y);
}

void TolvaList::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseUp(button, shift, x, y);
}

void TolvaList::OnClick()
{
    m_events->Click();
}

void TolvaList::OnDblClick()
{
    m_events->DblClick();
}

// The keys move the selection through the ListIndex setter, a page being the scroll bar's
// LargeChange; the client hears KeyDown after the selection moved.
void TolvaList::OnKeyDown(int16_t& keyCode, int16_t& shift)
{
    switch (keyCode) {
    case Key::PageUp:
        SetListIndex(CheckedSubtract(m_listIndex, m_tscList->LargeChange()));
        break;
    case Key::PageDown:
        SetListIndex(CheckedAdd(m_listIndex, m_tscList->LargeChange()));
        break;
    case Key::End:
        SetListIndex(m_rowCount);
        break;
    case Key::Home:
        SetListIndex(1);
        break;
    case Key::Up:
        SetListIndex(CheckedSubtract(m_listIndex, 1));
        break;
    case Key::Down:
        SetListIndex(CheckedAdd(m_listIndex, 1));
        break;
    default:
        break;
    }
    m_events->KeyDown(keyCode, shift);
}

void TolvaList::OnKeyPress(int16_t& keyAscii)
{
    m_events->KeyPress(keyAscii);
}

void TolvaList::OnKeyUp(int16_t& keyCode, int16_t& shift)
{
    m_events->KeyUp(keyCode, shift);
}

} // namespace tolva
