// The drop-down button at the right edge, and opening the pop-up of the style.
#include "controls/input/tolva_input.h"
#include "core/format/formatter.h"
#include "core/input_popups.h"
#include "core/long_arithmetic.h"
#include <algorithm>
#include <cmath>

namespace tolva {

namespace {

constexpr int16_t LeftButton = 1;
constexpr int16_t KeyUp = 38;
constexpr int16_t KeyDown = 40;
constexpr int16_t KeyF4 = 115;
constexpr OleColor Black = 0x000000;
constexpr int32_t ListRows = 10; // rows of the list pop-up before it scrolls

PopupKind KindOfStyle(int32_t style)
{
    return style == tkInputStyles::tkCalendar ? PopupKind::Calendar
        : style == tkInputStyles::tkCalculator ? PopupKind::Calculator
                                                : PopupKind::List;
}

} // namespace

// The text box fills the control but for the button strip; the control is at least 285 twips
// high. Nothing is laid out before the control was initialised.
void TolvaInput::Layout()
{
    if (m_surface.Height() < MinimumHeight)
        m_surface.Move(m_surface.Left(), m_surface.Top(), m_surface.Width(), MinimumHeight);
    if (!m_initialised)
        return;
    const float strip = m_style == tkInputStyles::tkTextBox ? 0 : ButtonWidth;
    m_txtInput->Move(0, 0, m_surface.ScaleWidth() - strip, m_surface.ScaleHeight());
}

void TolvaInput::OnResize()
{
    Layout();
}

void TolvaInput::OnPaint()
{
    DrawDropDownButton();
}

void TolvaInput::OnAmbientChanged(StringView)
{
    DrawDropDownButton();
}

// The strip is drawn one pixel wider than it is, so its frame's right edge lies past the
// control's and the sunken border closes it.
void TolvaInput::DrawDropDownButton()
{
    Layout();
    const float left = m_txtInput->Width();
    const float strip = m_surface.ScaleWidth() - left;
    if (strip < 0)
        return;
    m_picBuffer.SetSize(strip + 15, m_surface.ScaleHeight());
    m_picBuffer.SetBackColor(m_mouse.pushed ? m_ddBackColorPushed
            : m_mouse.hot                   ? m_ddBackColorActive
                                            : m_ddBackColor);
    const float width = m_picBuffer.ScaleWidth();
    const float height = m_picBuffer.ScaleHeight();
    m_picBuffer.Box(0, 0, width - 15, height - 15, Black);
    // A downward triangle of lines 5, 3 and 1 pixels long.
    const float x = float(int32_t(width) / 2 - 30);
    const float y = float(int32_t(height) / 2 - 15);
    m_picBuffer.Line(x, y, x + 75, y, Black);
    m_picBuffer.Line(x + 15, y + 15, x + 60, y + 15, Black);
    m_picBuffer.Line(x + 30, y + 30, x + 45, y + 30, Black);
    m_picBuffer.CopyToSurface(left, 0);
}

void TolvaInput::Repaint()
{
    DrawDropDownButton();
}

// The mouse over the strip (the text box covers the rest of the control); its bounds count as
// inside.
void TolvaInput::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    const bool inside = x >= m_txtInput->Width() && x <= m_surface.ScaleWidth() && y >= 0 && y <= m_surface.ScaleHeight();
    SetHover(m_surface, m_mouse, inside);
    DrawDropDownButton();
    m_events->MouseMove(button, shift, x, y);
}

void TolvaInput::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    const bool closedPopup = ClosedPopup(x, y);
    m_closingPress.reset();
    if (button == LeftButton) {
        PressButton(shift, x, y, closedPopup);
        return;
    }
    m_events->MouseDown(button, shift, x, y);
}

// Whether the press at (x, y) is the one that took the activation from this control's pop-up:
// the same screen pixel, give or take the rounding of twips.
bool TolvaInput::ClosedPopup(float x, float y) const
{
    if (!m_closingPress)
        return false;
    const PixelPoint origin = m_surface.ScreenOrigin();
    const float pressX = float(origin.x) + x / float(m_surface.TwipsPerPixelX());
    const float pressY = float(origin.y) + y / float(m_surface.TwipsPerPixelY());
    return std::abs(pressX - float(m_closingPress->x)) <= 1 && std::abs(pressY - float(m_closingPress->y)) <= 1;
}

// A left press pushes the button and opens (or closes) the pop-up of the style. A press whose
// arrival already closed the pop-up (it took the pop-up's activation first, and the pop-up
// accepted) has done what a second press does, and only pushes the button.
void TolvaInput::PressButton(int16_t shift, float x, float y, bool closedPopup)
{
    ClickForwarding::Press(m_surface, m_mouse, *this);
    if (HasDropDown() && !closedPopup)
        if (InputPopup* popup = m_site.Popups().Load(KindOfStyle(m_style)))
            ShowDropDown(*popup);
    int16_t button = LeftButton;
    m_events->MouseDown(button, shift, x, y);
}

void TolvaInput::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseUp(m_surface, m_mouse, *this, button, shift, x, y);
}

void TolvaInput::Clicked()
{
    m_events->Click();
}

// The focus belongs to the text box.
void TolvaInput::OnGotFocus()
{
    m_surface.Announce(AccessibleEvent::Focus, None);
    m_txtInput->SetFocus();
}

// Up and Down step through the items without clamping, so a step past either end fails with
// the list box's error. F4 presses the button without releasing it: the button stays pushed
// until the next release on it.
void TolvaInput::HandleKey(int16_t& keyCode)
{
    if (m_style == tkInputStyles::tkCombo && (keyCode == KeyUp || keyCode == KeyDown)) {
        SetListIndex(int16_t(ListIndex() + (keyCode == KeyUp ? -1 : 1)));
        keyCode = 0;
    }
    if (keyCode == KeyF4)
        PressButton(0, m_surface.ScaleWidth() - 15, 0);
}

// Hiding the control closes every pop-up, whoever opened it.
void TolvaInput::OnHide()
{
    UnloadPopups();
}

void TolvaInput::UnloadPopups()
{
    InputPopups& popups = m_site.Popups();
    for (PopupKind kind : { PopupKind::List, PopupKind::Calendar, PopupKind::Calculator })
        popups.Unload(kind);
}

// The text height of a blank in the control's font, twips.
float TolvaInput::BlankHeight()
{
    m_picBuffer.SetFont(m_txtInput->GetFont());
    return m_picBuffer.TextHeight(u" ");
}

// Opens the pop-up, or closes a visible one and takes what it shows.
void TolvaInput::ShowDropDown(InputPopup& popup)
{
    if (popup.Visible()) {
        popup.Hide();
        String param;
        Currency value;
        PopupWindowCallback(param, value);
        return;
    }
    if (popup.Kind() == PopupKind::List)
        popup.Resize(2 * m_surface.ScaleWidth(),
            float(std::min(m_lstDummy.ListCount(), ListRows)) * BlankHeight() + 60);
    PlacePopup(popup);
    m_txtInput->SetTag(m_txtInput->Text());
    m_lstDummy.SetTag(Variant(m_lstDummy.ListIndex()).ToString());
    popup.SetParent(this);
    PreparePopup(popup);
    popup.Setup();
    popup.Show();
    AnnounceDropDown();
}

// Below the control, or above it where the screen ends; left-aligned with it, or right-aligned
// where the screen ends. The vertical test leaves the control's own height out.
void TolvaInput::PlacePopup(InputPopup& popup)
{
    const PixelPoint origin = m_surface.ScreenOrigin();
    const PixelPoint screen = m_surface.ScreenSize();
    const float twipsX = float(m_surface.TwipsPerPixelX());
    const float twipsY = float(m_surface.TwipsPerPixelY());
    const float left = float(origin.x) * twipsX;
    const float top = float(origin.y) * twipsY;
    const float screenWidth = float(screen.x) * twipsX;
    const float screenHeight = float(screen.y) * twipsY;
    const float popupLeft = left + popup.Width() <= screenWidth ? left : left + m_surface.Width() - popup.Width();
    const float popupTop = top + popup.Height() <= screenHeight ? top + m_surface.Height() : top - popup.Height();
    popup.Move(popupLeft, popupTop);
}

// What each pop-up is told before it shows.
void TolvaInput::PreparePopup(InputPopup& popup)
{
    switch (popup.Kind()) {
    case PopupKind::Calendar: {
        auto& calendar = static_cast<CalendarPopup&>(popup);
        Formatter& formatter = Formatting();
        const String text = m_txtInput->Text();
        calendar.SetDate(formatter.IsDate(text) ? formatter.TextToDate(text) : formatter.Today());
        calendar.SetCurrentDate(calendar.Date());
        return;
    }
    case PopupKind::Calculator: {
        Formatter& formatter = Formatting();
        if (!formatter.IsNumeric(m_txtInput->Text()))
            m_txtInput->SetText(u"0");
        String param = u"C";
        Currency value = formatter.TextToCurrency(m_txtInput->Text());
        PopupWindowCallback(param, value);
        return;
    }
    case PopupKind::List: {
        auto& list = static_cast<ListPopup&>(popup);
        list.SetList(&m_lstDummy);
        const int32_t rows = RoundToLong(popup.Height()) / std::max(1, RoundToLong(BlankHeight() + 30));
        const int32_t listIndex = m_lstDummy.ListIndex();
        if (listIndex >= rows) {
            m_lstDummy.SetTopIndex(listIndex - rows + 1);
            list.SetTopIndex(m_lstDummy.TopIndex());
        } else {
            list.SetTopIndex(1);
        }
        list.SetScrollBarVisible(m_lstDummy.ListCount() >= ListRows + 1);
        list.SetSelectedItem(listIndex + 1);
        return;
    }
    }
}

bool TolvaInput::HasDropDown() const
{
    return m_style == tkInputStyles::tkCalendar || m_style == tkInputStyles::tkCalculator || m_style == tkInputStyles::tkCombo;
}

bool TolvaInput::DropDownOpen() const
{
    if (!HasDropDown())
        return false;
    const InputPopup* popup = m_site.Popups().Loaded(KindOfStyle(m_style));
    return popup && popup->Visible() && popup->Parent() == this;
}

void TolvaInput::AnnounceDropDown()
{
    const bool open = DropDownOpen();
    if (open == m_announcedOpen)
        return;
    m_announcedOpen = open;
    m_surface.Announce(AccessibleEvent::StateChange, None);
}

} // namespace tolva
