#include "controls/input/tolva_input.h"
#include "core/input_popups.h"

namespace tolva {

namespace {

constexpr OleColor DefaultBackColor = SystemColor::Window;
constexpr OleColor DefaultForeColor = SystemColor::WindowText;
constexpr const char16_t* DefaultText = u"TolvaInput1";

int16_t ToInteger(int32_t value)
{
    return Variant(value).ToInt16();
}

} // namespace

TolvaInput::TolvaInput(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
    , m_txtInput(surface.CreateTextBox())
    , m_picBuffer(surface)
{
    // The look of a text box: the sunken edge around a borderless inner box.
    m_surface.SetBorderStyle(1);
    m_surface.SetAppearance(SurfaceAppearance::ThreeD);
    m_txtInput->SetListener(&m_textEvents);
    m_surface.SetListener(this);
}

// A pop-up that still reports to this control would call into a dead object.
TolvaInput::~TolvaInput()
{
    m_surface.SetListener(nullptr);
    m_txtInput->SetListener(nullptr);
    InputPopups& popups = m_site.Popups();
    for (PopupKind kind : { PopupKind::Calendar, PopupKind::Calculator, PopupKind::List })
        if (InputPopup* popup = popups.Loaded(kind); popup && popup->Parent() == this)
            popups.Unload(kind);
}

// Lifecycle.
void TolvaInput::InitProperties()
{
    m_style = tkInputStyles::tkTextBox;
    m_ddBackColor = DefaultddBackColor;
    m_ddBackColorActive = DefaultddBackColorActive;
    m_ddBackColorPushed = DefaultddBackColorPushed;
    m_formatString.clear();
    m_initialised = true;
    Layout();
}

// A saved index that the one saved item cannot hold leaves no selection.
void TolvaInput::ReadProperties(PropertyBag& bag)
{
    m_txtInput->SetBackColor(bag.ReadProperty(u"BackColor", DefaultBackColor).ToColor());
    m_txtInput->SetForeColor(bag.ReadProperty(u"ForeColor", DefaultForeColor).ToColor());
    const bool enabled = bag.ReadProperty(u"Enabled", true).ToBool();
    m_surface.SetEnabled(enabled);
    m_txtInput->SetEnabled(enabled);
    m_lstDummy.SetList(0, bag.ReadProperty(u"List0", u"").ToString());
    const int16_t listIndex = bag.ReadProperty(u"ListIndex", int16_t(0)).ToInt16();
    if (listIndex >= -1 && listIndex < m_lstDummy.ListCount())
        m_lstDummy.SetListIndex(listIndex);
    m_txtInput->SetLocked(bag.ReadProperty(u"Locked", false).ToBool());
    m_txtInput->SetMaxLength(bag.ReadProperty(u"MaxLength", int32_t(0)).ToInt32());
    m_txtInput->SetSelLength(bag.ReadProperty(u"SelLength", int32_t(0)).ToInt32());
    m_txtInput->SetSelStart(bag.ReadProperty(u"SelStart", int32_t(0)).ToInt32());
    m_txtInput->SetSelText(bag.ReadProperty(u"SelText", u"").ToString());
    m_txtInput->SetText(bag.ReadProperty(u"Text", DefaultText).ToString());
    m_style = bag.ReadProperty(u"Style", int32_t(tkInputStyles::tkTextBox)).ToInt32();
    m_ddBackColor = bag.ReadProperty(u"ddBackColor", DefaultddBackColor).ToColor();
    m_ddBackColorActive = bag.ReadProperty(u"ddBackColorActive", DefaultddBackColorActive).ToColor();
    m_ddBackColorPushed = bag.ReadProperty(u"ddBackColorPushed", DefaultddBackColorPushed).ToColor();
    m_selectionTracking = bag.ReadProperty(u"SelectionTracking", false).ToBool();
    SetFont(bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont());
    m_formatString = bag.ReadProperty(u"FormatString", u"").ToString();
    m_initialised = true;
    Layout();
}

// Only the first item is kept: the others are not saved.
void TolvaInput::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"BackColor", m_txtInput->BackColor(), DefaultBackColor);
    bag.WriteProperty(u"ForeColor", m_txtInput->ForeColor(), DefaultForeColor);
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"Font", m_txtInput->GetFont(), m_site.AmbientFont());
    bag.WriteProperty(u"List0", m_lstDummy.List(0), u"");
    bag.WriteProperty(u"ListIndex", ToInteger(m_lstDummy.ListIndex()), int16_t(0));
    bag.WriteProperty(u"Locked", m_txtInput->Locked(), false);
    bag.WriteProperty(u"MaxLength", m_txtInput->MaxLength(), int32_t(0));
    bag.WriteProperty(u"SelLength", m_txtInput->SelLength(), int32_t(0));
    bag.WriteProperty(u"SelStart", m_txtInput->SelStart(), int32_t(0));
    bag.WriteProperty(u"SelText", m_txtInput->SelText(), u"");
    bag.WriteProperty(u"Text", m_txtInput->Text(), DefaultText);
    bag.WriteProperty(u"Style", m_style, int32_t(tkInputStyles::tkTextBox));
    bag.WriteProperty(u"ddBackColor", m_ddBackColor, DefaultddBackColor);
    bag.WriteProperty(u"ddBackColorActive", m_ddBackColorActive, DefaultddBackColorActive);
    bag.WriteProperty(u"ddBackColorPushed", m_ddBackColorPushed, DefaultddBackColorPushed);
    bag.WriteProperty(u"SelectionTracking", m_selectionTracking, false);
    bag.WriteProperty(u"FormatString", m_formatString, u"");
}

// Setters store the value (or hand it to txtInput), tell the designer and redraw the button.
void TolvaInput::PropertyChanged(StringView key)
{
    m_site.PropertyChanged(key);
    DrawDropDownButton();
}

void TolvaInput::AboutBox()
{
    m_site.ShowAboutBox();
}

OleColor TolvaInput::BackColor() const
{
    return m_txtInput->BackColor();
}

void TolvaInput::SetBackColor(OleColor color)
{
    m_txtInput->SetBackColor(color);
    PropertyChanged(u"BackColor");
}

OleColor TolvaInput::ForeColor() const
{
    return m_txtInput->ForeColor();
}

void TolvaInput::SetForeColor(OleColor color)
{
    m_txtInput->SetForeColor(color);
    PropertyChanged(u"ForeColor");
}

bool TolvaInput::Enabled() const
{
    return m_surface.Enabled();
}

// The text box and the button go with the control.
void TolvaInput::SetEnabled(bool enabled)
{
    m_surface.SetEnabled(enabled);
    m_txtInput->SetEnabled(enabled);
    PropertyChanged(u"Enabled");
}

Font TolvaInput::GetFont() const
{
    return m_txtInput->GetFont();
}

void TolvaInput::SetFont(const Font& font)
{
    m_txtInput->SetFont(font);
    PropertyChanged(u"Font");
}

void TolvaInput::Refresh()
{
    DrawDropDownButton();
}

void TolvaInput::AddItem(StringView item, const Variant& index)
{
    if (index.IsEmpty())
        m_lstDummy.AddItem(item);
    else
        m_lstDummy.AddItem(item, index.ToInt16());
}

String TolvaInput::List(int16_t index) const
{
    return m_lstDummy.List(index);
}

void TolvaInput::SetList(int16_t index, StringView item)
{
    m_lstDummy.SetList(index, item);
}

int16_t TolvaInput::ListCount() const
{
    return ToInteger(m_lstDummy.ListCount());
}

int16_t TolvaInput::ListIndex() const
{
    return ToInteger(m_lstDummy.ListIndex());
}

// Choosing an item replaces the text in every style, and selects all of it.
void TolvaInput::SetListIndex(int16_t index)
{
    m_lstDummy.SetListIndex(index);
    if (auto* list = m_site.Popups().Loaded<ListPopup>())
        list->SetSelectedItem(index + 1);
    m_txtInput->SetText(m_lstDummy.List(index));
    m_txtInput->SetSelStart(0);
    m_txtInput->SetSelLength(int32_t(m_txtInput->Text().size()));
    m_site.PropertyChanged(u"ListIndex");
}

bool TolvaInput::Locked() const
{
    return m_txtInput->Locked();
}

void TolvaInput::SetLocked(bool locked)
{
    m_txtInput->SetLocked(locked);
    PropertyChanged(u"Locked");
}

int32_t TolvaInput::MaxLength() const
{
    return m_txtInput->MaxLength();
}

void TolvaInput::SetMaxLength(int32_t length)
{
    m_txtInput->SetMaxLength(length);
    PropertyChanged(u"MaxLength");
}

int16_t TolvaInput::NewIndex() const
{
    return ToInteger(m_lstDummy.NewIndex());
}

void TolvaInput::RemoveItem(int16_t index)
{
    m_lstDummy.RemoveItem(index);
}

int32_t TolvaInput::SelLength() const
{
    return m_txtInput->SelLength();
}

void TolvaInput::SetSelLength(int32_t length)
{
    m_txtInput->SetSelLength(length);
    PropertyChanged(u"SelLength");
}

int32_t TolvaInput::SelStart() const
{
    return m_txtInput->SelStart();
}

void TolvaInput::SetSelStart(int32_t start)
{
    m_txtInput->SetSelStart(start);
    PropertyChanged(u"SelStart");
}

String TolvaInput::SelText() const
{
    return m_txtInput->SelText();
}

void TolvaInput::SetSelText(StringView text)
{
    m_txtInput->SetSelText(text);
    PropertyChanged(u"SelText");
}

String TolvaInput::Text() const
{
    return m_txtInput->Text();
}

void TolvaInput::SetText(StringView text)
{
    m_txtInput->SetText(text);
    PropertyChanged(u"Text");
}

// Changing the style keeps the text and the items; the button appears or goes at once.
void TolvaInput::SetStyle(int32_t style)
{
    m_style = style;
    Layout();
    DrawDropDownButton();
    m_site.PropertyChanged(u"Style");
}

void TolvaInput::SetddBackColor(OleColor color)
{
    m_ddBackColor = color;
    PropertyChanged(u"ddBackColor");
}

void TolvaInput::SetddBackColorActive(OleColor color)
{
    m_ddBackColorActive = color;
    PropertyChanged(u"ddBackColorActive");
}

void TolvaInput::SetddBackColorPushed(OleColor color)
{
    m_ddBackColorPushed = color;
    PropertyChanged(u"ddBackColorPushed");
}

void TolvaInput::SetSelectionTracking(bool tracking)
{
    m_selectionTracking = tracking;
    PropertyChanged(u"SelectionTracking");
}

void TolvaInput::SetFormatString(StringView format)
{
    m_formatString = format;
    PropertyChanged(u"FormatString");
}

// txtInput's events. KeyDown comes after the control's own keys, with the key they left.
void TolvaInput::TextEvents::OnChange()
{
    m_owner.m_surface.Announce(AccessibleEvent::ValueChange, None);
    m_owner.m_events->Change();
}

void TolvaInput::TextEvents::OnClick()
{
    m_owner.m_events->Click();
}

void TolvaInput::TextEvents::OnDblClick()
{
    m_owner.m_events->DblClick();
}

void TolvaInput::TextEvents::OnKeyDown(int16_t& keyCode, int16_t& shift)
{
    m_owner.HandleKey(keyCode);
    m_owner.m_events->KeyDown(keyCode, shift);
}

void TolvaInput::TextEvents::OnKeyPress(int16_t& keyAscii)
{
    m_owner.m_events->KeyPress(keyAscii);
}

void TolvaInput::TextEvents::OnKeyUp(int16_t& keyCode, int16_t& shift)
{
    m_owner.m_events->KeyUp(keyCode, shift);
}

void TolvaInput::TextEvents::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    m_owner.m_events->MouseDown(button, shift, x, y);
}

void TolvaInput::TextEvents::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    m_owner.m_events->MouseMove(button, shift, x, y);
}

void TolvaInput::TextEvents::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    m_owner.m_events->MouseUp(button, shift, x, y);
}

} // namespace tolva
