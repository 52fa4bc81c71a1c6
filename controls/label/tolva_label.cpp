#include "controls/label/tolva_label.h"
#include "core/border_style.h"
#include "core/parent_menu.h"

namespace tolva {

TolvaLabel::TolvaLabel(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
{
    m_surface.SetListener(this);
}

TolvaLabel::~TolvaLabel()
{
    m_surface.SetListener(nullptr);
}

// Lifecycle. A new label is light on dark: white text on black, pale amber when hot.
void TolvaLabel::InitProperties()
{
    SetFont(m_site.AmbientFont());
    m_alignment = tkLabelAlignment::tkAlignLeft;
    m_foreColorActive = DefaultForeColorActive;
    m_foreColorDisabled = DefaultForeColorDisabled;
    m_arrowIcon = tkArrowIcon::tkArrowLeft;
    m_arrowPosition = tkArrowPosition::tkNone;
    m_kerning = false;
    SetBackColor(DefaultBackColor);
    SetForeColor(DefaultForeColor);
    m_foreColorPushed = DefaultForeColorPushed;
    m_backColorActive = DefaultBackColorActive;
    m_backColorPushed = DefaultBackColorPushed;
    m_caption = m_site.ExtenderName();
    m_menuName.clear();
}

void TolvaLabel::ReadProperties(PropertyBag& bag)
{
    m_surface.SetBackColor(bag.ReadProperty(u"BackColor", DefaultBackColor).ToColor());
    m_surface.SetForeColor(bag.ReadProperty(u"ForeColor", DefaultForeColor).ToColor());
    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    m_surface.SetBorderStyle(
        SurfaceBorderStyle(bag.ReadProperty(u"BorderStyle", int32_t(tkLabelBorderStyle::None)).ToInt32()));
    m_alignment = bag.ReadProperty(u"Alignment", int32_t(tkLabelAlignment::tkAlignLeft)).ToInt32();
    m_caption = bag.ReadProperty(u"Caption", DefaultCaption).ToString();
    m_foreColorActive = bag.ReadProperty(u"ForeColorActive", DefaultForeColorActive).ToColor();
    m_foreColorDisabled = bag.ReadProperty(u"ForeColorDisabled", DefaultForeColorDisabled).ToColor();
    m_arrowIcon = bag.ReadProperty(u"ArrowIcon", int32_t(tkArrowIcon::tkArrowLeft)).ToInt32();
    m_arrowPosition = bag.ReadProperty(u"ArrowPosition", int32_t(tkArrowPosition::tkNone)).ToInt32();
    m_kerning = bag.ReadProperty(u"Kerning", false).ToBool();
    m_foreColorPushed = bag.ReadProperty(u"ForeColorPushed", DefaultForeColorPushed).ToColor();
    m_backColorActive = bag.ReadProperty(u"BackColorActive", DefaultBackColorActive).ToColor();
    m_backColorPushed = bag.ReadProperty(u"BackColorPushed", DefaultBackColorPushed).ToColor();
    m_menuName = bag.ReadProperty(u"MenuName", u"").ToString();
    SetFont(bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont());
}

// BackColor and ForeColor are written against the system button colours, not against the black
// and white they are read with: a label in those system colours comes back white on black.
void TolvaLabel::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"BackColor", m_surface.BackColor(), WrittenDefaultBackColor);
    bag.WriteProperty(u"ForeColor", m_surface.ForeColor(), WrittenDefaultForeColor);
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"Font", m_surface.GetFont(), m_site.AmbientFont());
    bag.WriteProperty(u"BorderStyle", BorderStyle(), int32_t(tkLabelBorderStyle::None));
    bag.WriteProperty(u"Alignment", m_alignment, int32_t(tkLabelAlignment::tkAlignLeft));
    bag.WriteProperty(u"Caption", m_caption, DefaultCaption);
    bag.WriteProperty(u"ForeColorActive", m_foreColorActive, DefaultForeColorActive);
    bag.WriteProperty(u"ForeColorDisabled", m_foreColorDisabled, DefaultForeColorDisabled);
    bag.WriteProperty(u"ArrowIcon", m_arrowIcon, int32_t(tkArrowIcon::tkArrowLeft));
    bag.WriteProperty(u"ArrowPosition", m_arrowPosition, int32_t(tkArrowPosition::tkNone));
    bag.WriteProperty(u"Kerning", m_kerning, false);
    bag.WriteProperty(u"ForeColorPushed", m_foreColorPushed, DefaultForeColorPushed);
    bag.WriteProperty(u"BackColorActive", m_backColorActive, DefaultBackColorActive);
    bag.WriteProperty(u"BackColorPushed", m_backColorPushed, DefaultBackColorPushed);
    bag.WriteProperty(u"MenuName", m_menuName, u"");
}

// Properties: store (or hand to the surface), tell the designer, repaint.
void TolvaLabel::PropertyChanged(StringView key)
{
    m_site.PropertyChanged(key);
    DrawLabel();
}

void TolvaLabel::SetBackColorPushed(OleColor color)
{
    m_backColorPushed = color;
    PropertyChanged(u"BackColorPushed");
}

void TolvaLabel::SetBackColorActive(OleColor color)
{
    m_backColorActive = color;
    PropertyChanged(u"BackColorActive");
}

void TolvaLabel::SetForeColorPushed(OleColor color)
{
    m_foreColorPushed = color;
    PropertyChanged(u"ForeColorPushed");
}

void TolvaLabel::SetArrowPosition(int32_t position)
{
    m_arrowPosition = position;
    PropertyChanged(u"ArrowPosition");
}

void TolvaLabel::SetArrowIcon(int32_t icon)
{
    m_arrowIcon = icon;
    PropertyChanged(u"ArrowIcon");
}

void TolvaLabel::SetForeColorActive(OleColor color)
{
    m_foreColorActive = color;
    PropertyChanged(u"ForeColorActive");
}

void TolvaLabel::SetCaption(StringView caption)
{
    m_caption = caption;
    PropertyChanged(u"Caption");
}

// The menu name dirties the form but shows only at the next click, so there is nothing to repaint.
void TolvaLabel::SetMenuName(StringView name)
{
    m_menuName = name;
    m_site.PropertyChanged(u"MenuName");
}

void TolvaLabel::SetKerning(bool kerning)
{
    m_kerning = kerning;
    PropertyChanged(u"Kerning");
}

int32_t TolvaLabel::BorderStyle() const
{
    return m_surface.BorderStyle();
}

void TolvaLabel::SetBorderStyle(int32_t style)
{
    m_surface.SetBorderStyle(SurfaceBorderStyle(style));
    PropertyChanged(u"BorderStyle");
}

void TolvaLabel::SetForeColorDisabled(OleColor color)
{
    m_foreColorDisabled = color;
    PropertyChanged(u"ForeColorDisabled");
}

void TolvaLabel::SetAlignment(int32_t alignment)
{
    m_alignment = alignment;
    PropertyChanged(u"Alignment");
}

// Methods.
void TolvaLabel::Refresh()
{
    m_surface.Refresh();
}

void TolvaLabel::AboutBox()
{
    m_site.ShowAboutBox();
}

// Surface notifications.
void TolvaLabel::OnPaint()
{
    DrawLabel();
}

// A window shows its new size only once it is painted again.
void TolvaLabel::OnResize()
{
    DrawLabel();
}

void TolvaLabel::OnAmbientChanged(StringView)
{
    DrawLabel();
}

void TolvaLabel::OnDblClick()
{
    m_events->DblClick();
}

void TolvaLabel::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseDown(m_surface, m_mouse, *this, button, shift, x, y);
}

void TolvaLabel::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseMove(m_surface, m_mouse, *this, button, shift, x, y);
}

void TolvaLabel::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    ClickForwarding::MouseUp(m_surface, m_mouse, *this, button, shift, x, y);
}

// The shared mouse steps.
void TolvaLabel::Repaint()
{
    DrawLabel();
}

bool TolvaLabel::IsLink() const
{
    return m_arrowPosition != tkArrowPosition::tkNone || !m_menuName.empty();
}

AccessibleDescription TolvaLabel::Describe() const
{
    const bool link = IsLink();
    return { .name = AccessibleName(m_caption, m_site),
        .role = link ? AccessibleRole::Link : AccessibleRole::StaticText,
        .state = AccessibleStateOf(m_surface, m_mouse, false),
        .value = {},
        .shortcut = AccessKeyShortcut(m_caption),
        .defaultAction = link ? u"Jump" : u"",
        .location = {} };
}

bool TolvaLabel::DoDefaultAction()
{
    if (!IsLink() || !m_surface.Enabled())
        return false;
    ClickForwarding::Click(m_surface, m_mouse, *this);
    return true;
}

void TolvaLabel::Clicked()
{
    m_events->Click();
    ShowMenu();
}

// The menu opens on the side the arrow points to: under a down arrow, to the right of a right
// arrow or pointer, and otherwise at the label's own top-left corner, whatever ArrowPosition is.
void TolvaLabel::ShowMenu()
{
    const String menuName = m_menuName; // the form's calls below must not see it change under them
    PopupParentMenu(m_site, m_surface, menuName, [this](PixelPoint offset) {
        MenuPoint at { double(offset.x), double(offset.y) };
        if (m_arrowIcon == tkArrowIcon::tkArrowDown)
            at.y += double(m_site.ExtenderHeight());
        else if (m_arrowIcon == tkArrowIcon::tkArrowRight || m_arrowIcon == tkArrowIcon::tkPointerRight)
            at.x += double(m_site.ExtenderWidth());
        return at;
    });
}

} // namespace tolva
