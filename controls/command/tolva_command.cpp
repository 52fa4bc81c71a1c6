#include "controls/command/tolva_command.h"
#include "core/parent_menu.h"

namespace tolva {

namespace {
constexpr int16_t LeftButton = 1;
constexpr int16_t KeyReturn = 13;
constexpr int16_t KeySpace = 32;
} // namespace

TolvaCommand::TolvaCommand(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
    , m_picBuffer(surface)
{
    m_surface.SetListener(this);
}

TolvaCommand::~TolvaCommand()
{
    m_surface.SetListener(nullptr);
}

// Lifecycle. ForeColor and Enabled keep the surface's own initial values on a new button.
void TolvaCommand::InitProperties()
{
    m_backColor = DefaultBackColor;
    m_backColorActive = DefaultBackColorActive;
    m_backColorPushed = DefaultBackColorPushed;
    m_foreColorDisabled = DefaultForeColorDisabled;
    m_menuName.clear();
    m_surface.SetFont(m_site.AmbientFont());
    m_caption = m_site.ExtenderName();
    m_style = tkStyle::tkNormal;
    m_alignment = tkCommandAlignment::tkLeft;
}

void TolvaCommand::ReadProperties(PropertyBag& bag)
{
    m_backColor = bag.ReadProperty(u"BackColor", DefaultBackColor).ToColor();
    m_backColorActive = bag.ReadProperty(u"BackColorActive", DefaultBackColorActive).ToColor();
    m_backColorPushed = bag.ReadProperty(u"BackColorPushed", DefaultBackColorPushed).ToColor();
    m_foreColorDisabled = bag.ReadProperty(u"ForeColorDisabled", DefaultForeColorDisabled).ToColor();
    m_menuName = bag.ReadProperty(u"MenuName", u"").ToString();
    m_surface.SetForeColor(bag.ReadProperty(u"ForeColor", DefaultForeColor).ToColor());
    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    SetFont(bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont());
    m_caption = bag.ReadProperty(u"Caption", DefaultCaption).ToString();
    m_style = bag.ReadProperty(u"Style", int32_t(tkStyle::tkNormal)).ToInt32();
    m_alignment = bag.ReadProperty(u"Alignment", int32_t(tkCommandAlignment::tkLeft)).ToInt32();
}

void TolvaCommand::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"BackColor", m_backColor, DefaultBackColor);
    bag.WriteProperty(u"BackColorActive", m_backColorActive, DefaultBackColorActive);
    bag.WriteProperty(u"BackColorPushed", m_backColorPushed, DefaultBackColorPushed);
    bag.WriteProperty(u"ForeColorDisabled", m_foreColorDisabled, DefaultForeColorDisabled);
    bag.WriteProperty(u"MenuName", m_menuName, u"");
    bag.WriteProperty(u"ForeColor", m_surface.ForeColor(), DefaultForeColor);
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"Font", m_surface.GetFont(), m_site.AmbientFont());
    bag.WriteProperty(u"Caption", m_caption, DefaultCaption);
    bag.WriteProperty(u"Style", m_style, int32_t(tkStyle::tkNormal));
    bag.WriteProperty(u"Alignment", m_alignment, int32_t(tkCommandAlignment::tkLeft));
}

// Properties: store (or hand to the surface), tell the designer, repaint.
void TolvaCommand::PropertyChanged(StringView key)
{
    m_site.PropertyChanged(key);
    DrawButton();
}

void TolvaCommand::SetStyle(int32_t style)
{
    m_style = style;
    PropertyChanged(u"Style");
}

void TolvaCommand::SetCaption(StringView caption)
{
    m_caption = caption;
    PropertyChanged(u"Caption");
}

void TolvaCommand::SetBackColorPushed(OleColor color)
{
    m_backColorPushed = color;
    PropertyChanged(u"BackColorPushed");
}

// The menu name matters only at the next click, so it neither dirties the form nor repaints.
void TolvaCommand::SetMenuName(StringView name)
{
    m_menuName = name;
}

void TolvaCommand::SetForeColorDisabled(OleColor color)
{
    m_foreColorDisabled = color;
    PropertyChanged(u"ForeColorDisabled");
}

void TolvaCommand::SetBackColor(OleColor color)
{
    m_backColor = color;
    PropertyChanged(u"BackColor");
}

void TolvaCommand::SetBackColorActive(OleColor color)
{
    m_backColorActive = color;
    PropertyChanged(u"BackColorActive");
}

void TolvaCommand::SetAlignment(int32_t alignment)
{
    m_alignment = alignment;
    PropertyChanged(u"Alignment");
}

// Methods.
void TolvaCommand::Refresh()
{
    m_surface.Refresh();
}

void TolvaCommand::AboutBox()
{
    m_site.ShowAboutBox();
}

// Surface notifications. The surface's own Click is ignored: Click follows the button's notion
// of a press, raised from the mouse-up step.
void TolvaCommand::OnPaint()
{
    DrawButton();
}

void TolvaCommand::OnAmbientChanged(StringView)
{
    DrawButton();
}

void TolvaCommand::OnDblClick()
{
    m_events->DblClick();
}

void TolvaCommand::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseDown(m_surface, m_mouse, *this, button, shift, x, y);
}

void TolvaCommand::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseMove(m_surface, m_mouse, *this, button, shift, x, y);
}

void TolvaCommand::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseUp(m_surface, m_mouse, *this, button, shift, x, y);
}

// Enter clicks at once, without the pushed look or the menu; Space presses and releases the
// button as the left mouse button would, at (0, 0).
void TolvaCommand::OnKeyDown(int16_t& keyCode, int16_t& shift)
{
    if (keyCode == KeyReturn)
        m_events->Click();
    else if (keyCode == KeySpace)
        ClickForwarding::MouseDown(m_surface, m_mouse, *this, LeftButton, 0, 0, 0);
    m_events->KeyDown(keyCode, shift);
}

void TolvaCommand::OnKeyPress(int16_t& keyAscii)
{
    m_events->KeyPress(keyAscii);
}

void TolvaCommand::OnKeyUp(int16_t& keyCode, int16_t& shift)
{
    if (keyCode == KeySpace)
        ClickForwarding::Click(m_surface, m_mouse, *this);
    m_events->KeyUp(keyCode, shift);
}

// Alt with the access character is a left-button release at (0, 0): Click, menu, MouseUp.
void TolvaCommand::OnAccessKeyPress(char16_t)
{
    ClickForwarding::Click(m_surface, m_mouse, *this);
}

AccessibleDescription TolvaCommand::Describe() const
{
    return { .name = AccessibleName(m_caption, m_site),
        .role = AccessibleRole::PushButton,
        .state = AccessibleStateOf(m_surface, m_mouse, true),
        .value = {},
        .shortcut = AccessKeyShortcut(m_caption),
        .defaultAction = m_style == tkStyle::tkMenu ? u"Open" : u"Press",
        .location = {} };
}

bool TolvaCommand::DoDefaultAction()
{
    if (!m_surface.Enabled())
        return false;
    ClickForwarding::Click(m_surface, m_mouse, *this);
    return true;
}

void TolvaCommand::OnGotFocus()
{
    m_hasFocus = true;
    DrawButton();
    m_surface.Announce(AccessibleEvent::Focus, AccessibleElement::None);
}

void TolvaCommand::OnLostFocus()
{
    m_hasFocus = false;
    DrawButton();
}

// The shared mouse steps.
void TolvaCommand::Repaint()
{
    DrawButton();
}

void TolvaCommand::Clicked()
{
    m_events->Click();
    ShowMenu();
}

// In menu style the parent's menu opens with its top-left corner at the button's bottom-left.
void TolvaCommand::ShowMenu()
{
    if (m_style != tkStyle::tkMenu)
        return;
    const String menuName = m_menuName; // the form's calls below must not see it change under them
    PopupParentMenu(m_site, m_surface, menuName, [this](PixelPoint offset) {
        return MenuPoint { double(offset.x), double(offset.y) + double(m_site.ExtenderHeight()) };
    });
}

} // namespace tolva
