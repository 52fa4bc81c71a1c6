#include "controls/command/tolva_command.h"
#include "core/long_arithmetic.h"

namespace tolva {

namespace {

constexpr OleColor Black = Rgb(0, 0, 0);
constexpr OleColor Grey = Rgb(128, 128, 128);

// The form language's integer division v \ 2, which first rounds v to a Long.
int32_t HalfAsLong(float v)
{
    return RoundToLong(v) / 2;
}

} // namespace

// The whole button is drawn off screen in twips, then copied to the surface in one go.
void TolvaCommand::DrawButton()
{
    TwipsCanvas& buffer = m_picBuffer;
    buffer.SetSize(m_surface.Width(), m_surface.Height());
    buffer.SetForeColor(m_surface.Enabled() ? m_surface.ForeColor() : m_foreColorDisabled);
    buffer.SetFont(m_surface.GetFont());
    // A disabled button gets no mouse input, so it shows the normal background.
    buffer.SetBackColor(m_mouse.pushed ? m_backColorPushed : m_mouse.hot ? m_backColorActive : m_backColor);

    const float width = m_surface.ScaleWidth();
    const float height = m_surface.ScaleHeight();
    if (m_surface.HasFocus()) {
        buffer.Box(15, 15, width - 30, height - 30, Black);
        buffer.Box(45, 45, width - 60, height - 60, Grey);
    }
    if (m_site.DisplayAsDefault())
        buffer.Box(15, 15, width - 30, height - 30, Black);
    buffer.Box(0, 0, width - 15, height - 15, Black);

    const ScannedCaption caption = ScanCaption(m_caption, m_surface);
    // Any alignment but centre starts 6 pixels in from the left edge.
    if (m_alignment == tkCommandAlignment::tkCenter)
        buffer.SetCurrentX(float(HalfAsLong(width)) - buffer.TextWidth(caption.text) / 2);
    else
        buffer.SetCurrentX(90);
    buffer.SetCurrentY(height / 2 - buffer.TextHeight(u" ") / 2 - 15);
    PrintCaption(caption);

    if (m_style == tkStyle::tkMenu)
        DrawDropDownMark();
    buffer.CopyToSurface();
}

// Three pieces so that only the access character is underlined.
void TolvaCommand::PrintCaption(const ScannedCaption& caption)
{
    m_picBuffer.SetFontUnderline(false);
    m_picBuffer.Print(caption.Before());
    if (!caption.HasAccessKey())
        return;
    const char16_t access = caption.AccessCharacter();
    m_picBuffer.SetFontUnderline(true);
    m_picBuffer.Print(StringView(&access, 1));
    m_picBuffer.SetFontUnderline(false);
    m_picBuffer.Print(caption.After());
}

// A downward triangle of rows 7, 5, 3 and 1 pixels wide, about 11 pixels in from the right edge.
void TolvaCommand::DrawDropDownMark()
{
    const float x0 = m_picBuffer.ScaleWidth() - 165;
    const float y0 = float(HalfAsLong(m_surface.ScaleHeight()) - 30);
    for (int row = 0; row < 4; ++row) {
        const float inset = 15.0f * float(row);
        m_picBuffer.Line(x0 + inset, y0 + inset, x0 + 105 - inset, y0 + inset, Black);
    }
}

} // namespace tolva
