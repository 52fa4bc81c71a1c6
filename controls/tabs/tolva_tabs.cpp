#include "controls/tabs/tolva_tabs.h"
#include "core/automation_error.h"
#include "core/long_arithmetic.h"

namespace tolva {

TolvaTabs::TolvaTabs(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
    , m_picBuffer(surface)
{
    m_surface.SetListener(this);
}

TolvaTabs::~TolvaTabs()
{
    m_surface.SetListener(nullptr);
}

// Lifecycle. The surface keeps its own colours; a new strip has no tabs and none selected.
void TolvaTabs::InitProperties()
{
    SetFont(m_site.AmbientFont());
    m_selectedItem = NoSelection;
    m_borderColor = DefaultBorderColor;
    m_tabCount = 0;
    m_backColorInactive = DefaultBackColorInactive;
    m_backColorBehind = DefaultBackColorBehind;
    m_tabWidth = DefaultTabWidth;
    m_store.Clear();
}

// TabCount is read on its own, not worked out from the arrays: a bag may hold a count that
// disagrees with the captions it stores, and the strip keeps it as it was saved.
void TolvaTabs::ReadProperties(PropertyBag& bag)
{
    m_surface.SetBackColor(bag.ReadProperty(u"BackColor", SystemColor::ButtonFace).ToColor());
    m_surface.SetForeColor(bag.ReadProperty(u"ForeColor", SystemColor::ButtonText).ToColor());
    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    m_store.ReadCaptions(bag);
    m_borderColor = bag.ReadProperty(u"BorderColor", DefaultBorderColor).ToColor();
    m_tabCount = bag.ReadProperty(u"TabCount", int32_t(0)).ToInt32();
    m_selectedItem = bag.ReadProperty(u"SelectedItem", NoSelection).ToInt32();
    m_store.ReadData(bag);
    m_backColorInactive = bag.ReadProperty(u"BackColorInactive", DefaultBackColorInactive).ToColor();
    m_backColorBehind = bag.ReadProperty(u"BackColorBehind", DefaultBackColorBehind).ToColor();
    m_tabWidth = bag.ReadProperty(u"TabWidth", DefaultTabWidth).ToInt32();
    SetFont(bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont());
}

void TolvaTabs::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"BackColor", m_surface.BackColor(), SystemColor::ButtonFace);
    bag.WriteProperty(u"ForeColor", m_surface.ForeColor(), SystemColor::ButtonText);
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    m_store.WriteCaptions(bag);
    bag.WriteProperty(u"BorderColor", m_borderColor, DefaultBorderColor);
    bag.WriteProperty(u"TabCount", m_tabCount, int32_t(0));
    bag.WriteProperty(u"SelectedItem", m_selectedItem, NoSelection);
    m_store.WriteData(bag);
    bag.WriteProperty(u"BackColorInactive", m_backColorInactive, DefaultBackColorInactive);
    bag.WriteProperty(u"BackColorBehind", m_backColorBehind, DefaultBackColorBehind);
    bag.WriteProperty(u"TabWidth", m_tabWidth, DefaultTabWidth);
    bag.WriteProperty(u"Font", m_surface.GetFont(), m_site.AmbientFont());
}

// Properties: store (or hand to the surface), tell the designer, redraw.
void TolvaTabs::PropertyChanged(StringView key)
{
    m_site.PropertyChanged(key);
    Redraw();
}

OleColor TolvaTabs::BackColor() const
{
    return m_surface.BackColor();
}

void TolvaTabs::SetBackColor(OleColor color)
{
    m_surface.SetBackColor(color);
    PropertyChanged(u"BackColor");
}

OleColor TolvaTabs::ForeColor() const
{
    return m_surface.ForeColor();
}

void TolvaTabs::SetForeColor(OleColor color)
{
    m_surface.SetForeColor(color);
    PropertyChanged(u"ForeColor");
}

bool TolvaTabs::Enabled() const
{
    return m_surface.Enabled();
}

// Being disabled changes nothing the strip draws, so there is nothing to redraw.
void TolvaTabs::SetEnabled(bool enabled)
{
    m_surface.SetEnabled(enabled);
    m_site.PropertyChanged(u"Enabled");
}

Font TolvaTabs::GetFont() const
{
    return m_surface.GetFont();
}

void TolvaTabs::SetFont(const Font& font)
{
    m_surface.SetFont(font);
    PropertyChanged(u"Font");
}

// The designer hears of a caption as "Tab", whatever its index.
void TolvaTabs::SetTabs(int32_t index, StringView caption)
{
    m_store.SetCaption(index, caption);
    PropertyChanged(u"Tab");
}

// The data shows nowhere: stored and reported, not redrawn.
void TolvaTabs::SetTabData(int32_t index, int32_t value)
{
    m_store.SetData(index, value);
    m_site.PropertyChanged(u"TabData");
}

// Any number is taken, one without a visible tab included. The handler of Change sees the new
// tab selected and drawn; if it cancels, the old one comes back without a second Change.
void TolvaTabs::SetSelectedItem(int32_t item)
{
    if (item == m_selectedItem)
        return;
    const int32_t old = m_selectedItem;
    m_selectedItem = item;
    PropertyChanged(u"SelectedItem");
    bool cancel = false;
    m_events->Change(cancel);
    if (!cancel) {
        AnnounceSelection(m_surface, *this);
        return;
    }
    m_selectedItem = old;
    PropertyChanged(u"SelectedItem");
}

void TolvaTabs::SetBorderColor(OleColor color)
{
    m_borderColor = color;
    PropertyChanged(u"BorderColor");
}

void TolvaTabs::SetBackColorInactive(OleColor color)
{
    m_backColorInactive = color;
    PropertyChanged(u"BackColorInactive");
}

void TolvaTabs::SetBackColorBehind(OleColor color)
{
    m_backColorBehind = color;
    PropertyChanged(u"BackColorBehind");
}

void TolvaTabs::SetTabWidth(int32_t width)
{
    m_tabWidth = width;
    PropertyChanged(u"TabWidth");
}

// The count is set and reported before the arrays are resized, so a size the arrays refuse
// leaves the new count in place.
void TolvaTabs::SetTabCount(int32_t count)
{
    m_tabCount = count;
    m_site.PropertyChanged(u"TabCount");
    m_store.Resize(count);
}

// Methods.
void TolvaTabs::AboutBox()
{
    m_site.ShowAboutBox();
}

// The selection stays as a number and nothing is reported: a tab added later under the same
// number shows selected again.
void TolvaTabs::Clear()
{
    m_store.Clear();
    m_tabCount = 0;
    Redraw();
}

void TolvaTabs::Refresh()
{
    m_surface.Refresh();
}

void TolvaTabs::AddItem(StringView caption)
{
    SetTabCount(CheckedAdd(m_tabCount, 1));
    m_store.SetCaption(m_tabCount, caption);
    Redraw();
}

// Only an index below the count moves anything: the last tab cannot be removed, index 0 removes
// tab 1, and the selection keeps its number.
void TolvaTabs::RemoveItem(int32_t index)
{
    if (index < m_tabCount) {
        m_store.MoveDown(index, m_tabCount);
        SetTabCount(m_tabCount - 1);
    }
    Redraw();
}

// Surface notifications.
void TolvaTabs::OnPaint()
{
    Redraw();
}

void TolvaTabs::OnResize()
{
    Redraw();
}

void TolvaTabs::OnAmbientChanged(StringView)
{
    Redraw();
}

void TolvaTabs::OnClick()
{
    m_events->Click();
}

void TolvaTabs::OnDblClick()
{
    m_events->DblClick();
}

void TolvaTabs::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    SelectTabAt(x, y);
    m_events->MouseDown(button, shift, x, y);
}

void TolvaTabs::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseMove(button, shift, x, y);
}

void TolvaTabs::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseUp(button, shift, x, y);
}

void TolvaTabs::OnKeyDown(int16_t& keyCode, int16_t& shift)
{
    m_events->KeyDown(keyCode, shift);
}

void TolvaTabs::OnKeyPress(int16_t& keyAscii)
{
    m_events->KeyPress(keyAscii);
}

void TolvaTabs::OnKeyUp(int16_t& keyCode, int16_t& shift)
{
    m_events->KeyUp(keyCode, shift);
}

// The key's place in the access-key string is taken as the tab's number. That is the tab only
// while every tab before it has an access key too.
void TolvaTabs::OnAccessKeyPress(char16_t key)
{
    const String keys = m_surface.AccessKeys();
    int32_t position = 0;
    for (size_t i = 0; i < keys.size() && position == 0; ++i) {
        if (UpperCase(keys[i]) == UpperCase(key))
            position = int32_t(i) + 1;
    }
    SetSelectedItem(position);
}

// Any button pressed on the row of tabs selects the tab under it, the gap after a tab counting
// for that tab; below the row nothing is selected.
void TolvaTabs::SelectTabAt(float x, float y)
{
    if (!(y < RowHeight()) || m_tabCount < 1)
        return;
    const int32_t pitch = CheckedAdd(m_tabWidth, 75);
    if (pitch == 0)
        throw AutomationError::RunTime(RunTimeError::DivisionByZero);
    const int64_t column = int64_t(RoundToLong(x)) / pitch;
    if (column < m_tabCount)
        SetSelectedItem(int32_t(column + 1));
}

// The height of the row of tabs: a space in the control's font and two pixels.
float TolvaTabs::RowHeight()
{
    m_picBuffer.SetFont(m_surface.GetFont());
    return m_picBuffer.TextHeight(u" ") + 30;
}

} // namespace tolva
