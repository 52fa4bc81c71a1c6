#include "controls/scroll/ctl_scroll_box.h"
#include "core/border_style.h"
#include "core/surface_fill.h"

namespace tolva {

namespace {

// The largest point size a font object takes.
constexpr float MaxFontSize = 2160;

} // namespace

// The box is flat, as designed: its fixed single border is a one-pixel frame.
ctlScrollBox::ctlScrollBox(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
{
    m_surface.SetListener(this);
    m_surface.SetAppearance(SurfaceAppearance::Flat);
}

ctlScrollBox::~ctlScrollBox()
{
    m_surface.SetListener(nullptr);
}

void ctlScrollBox::InitProperties()
{
    m_surface.SetFont(m_site.AmbientFont());
}

// The first three keys come twice in a row; the same values are read twice, which is harmless.
void ctlScrollBox::ReadProperties(PropertyBag& bag)
{
    ReadSurfaceKeys(bag);
    ReadSurfaceKeys(bag);
    ScrollBoxDrawingState& state = m_drawingState;
    state.currentX = bag.ReadProperty(u"CurrentX", 0.0f).ToFloat();
    state.currentY = bag.ReadProperty(u"CurrentY", 0.0f).ToFloat();
    state.drawStyle = bag.ReadProperty(u"DrawStyle", int16_t(0)).ToInt16();
    state.drawWidth = bag.ReadProperty(u"DrawWidth", int16_t(1)).ToInt16();
    state.fillColor = bag.ReadProperty(u"FillColor", OleColor(0)).ToColor();
    state.fillStyle = bag.ReadProperty(u"FillStyle", int16_t(1)).ToInt16();
    Font font = bag.ReadProperty(u"Font", m_site.AmbientFont()).ToFont();
    m_surface.SetForeColor(bag.ReadProperty(u"ForeColor", SystemColor::ButtonText).ToColor());
    state.maskColor = bag.ReadProperty(u"MaskColor", SystemColor::ButtonFace).ToColor();
    state.maskPicture = bag.ReadProperty(u"MaskPicture", Variant());
    state.picture = bag.ReadProperty(u"Picture", Variant());

    // The single font attributes come after the font and override it. A missing name or size
    // (read as empty or 0) leaves the font's own.
    font.SetBold(bag.ReadProperty(u"FontBold", false).ToBool());
    font.italic = bag.ReadProperty(u"FontItalic", false).ToBool();
    if (String name = bag.ReadProperty(u"FontName", u"").ToString(); !name.empty())
        font.name = std::move(name);
    if (const float size = bag.ReadProperty(u"FontSize", 0.0f).ToFloat(); size > 0 && size <= MaxFontSize)
        font.size = size;
    font.strikethrough = bag.ReadProperty(u"FontStrikethru", false).ToBool();
    state.fontTransparent = bag.ReadProperty(u"FontTransparent", true).ToBool();
    font.underline = bag.ReadProperty(u"FontUnderline", false).ToBool();
    m_surface.SetFont(font);
}

void ctlScrollBox::WriteProperties(PropertyBag& bag) const
{
    WriteSurfaceKeys(bag);
    WriteSurfaceKeys(bag);
    const ScrollBoxDrawingState& state = m_drawingState;
    const Font font = m_surface.GetFont();
    bag.WriteProperty(u"CurrentX", state.currentX, 0.0f);
    bag.WriteProperty(u"CurrentY", state.currentY, 0.0f);
    bag.WriteProperty(u"DrawStyle", state.drawStyle, int16_t(0));
    bag.WriteProperty(u"DrawWidth", state.drawWidth, int16_t(1));
    bag.WriteProperty(u"FillColor", state.fillColor, OleColor(0));
    bag.WriteProperty(u"FillStyle", state.fillStyle, int16_t(1));
    bag.WriteProperty(u"Font", font, m_site.AmbientFont());
    bag.WriteProperty(u"ForeColor", m_surface.ForeColor(), SystemColor::ButtonText);
    bag.WriteProperty(u"MaskColor", state.maskColor, SystemColor::ButtonFace);
    bag.WriteProperty(u"MaskPicture", state.maskPicture, Variant());
    bag.WriteProperty(u"Picture", state.picture, Variant());
    bag.WriteProperty(u"FontBold", font.Bold(), false);
    bag.WriteProperty(u"FontItalic", font.italic, false);
    bag.WriteProperty(u"FontName", font.name, u"");
    bag.WriteProperty(u"FontSize", float(font.size), 0.0f);
    bag.WriteProperty(u"FontStrikethru", font.strikethrough, false);
    bag.WriteProperty(u"FontTransparent", state.fontTransparent, true);
    bag.WriteProperty(u"FontUnderline", font.underline, false);
}

void ctlScrollBox::ReadSurfaceKeys(PropertyBag& bag)
{
    m_surface.SetBackColor(bag.ReadProperty(u"BackColor", DefaultBackColor).ToColor());
    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    m_surface.SetBorderStyle(SurfaceBorderStyle(bag.ReadProperty(u"BorderStyle", DefaultBorderStyle).ToInt16()));
}

void ctlScrollBox::WriteSurfaceKeys(PropertyBag& bag) const
{
    bag.WriteProperty(u"BackColor", m_surface.BackColor(), DefaultBackColor);
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"BorderStyle", m_surface.BorderStyle(), DefaultBorderStyle);
}

// Properties. The box shows its new colour at once, as a window does when its colour changes.
OleColor ctlScrollBox::BackColor() const
{
    return m_surface.BackColor();
}

void ctlScrollBox::SetBackColor(OleColor color)
{
    m_surface.SetBackColor(color);
    m_site.PropertyChanged(u"BackColor");
    PaintBackground(m_surface);
}

bool ctlScrollBox::Enabled() const
{
    return m_surface.Enabled();
}

void ctlScrollBox::SetEnabled(bool enabled)
{
    m_surface.SetEnabled(enabled);
    m_site.PropertyChanged(u"Enabled");
}

int16_t ctlScrollBox::BorderStyle() const
{
    return m_surface.BorderStyle();
}

void ctlScrollBox::SetBorderStyle(int16_t style)
{
    m_surface.SetBorderStyle(SurfaceBorderStyle(style));
    m_site.PropertyChanged(u"BorderStyle");
}

// Surface notifications: the plain window paints its colour and passes every mouse event on.
void ctlScrollBox::OnPaint()
{
    PaintBackground(m_surface);
}

void ctlScrollBox::OnClick()
{
    m_events->Click();
}

void ctlScrollBox::OnDblClick()
{
    m_events->DblClick();
}

void ctlScrollBox::OnMouseDown(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseDown(button, shift, x, y);
}

void ctlScrollBox::OnMouseMove(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseMove(button, shift, x, y);
}

void ctlScrollBox::OnMouseUp(int16_t button, int16_t shift, float x, float y)
{
    m_events->MouseUp(button, shift, x, y);
}

} // namespace tolva
