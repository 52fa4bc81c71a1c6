#include "controls/label/arrow_glyph.h"
#include "core/line_pen.h"
#include "controls/label/tolva_label.h"
#include "core/caption.h"
#include "core/long_arithmetic.h"
#include "core/twips_canvas.h"
#include <algorithm>

namespace tolva {

namespace {

// The label hands its colours to the canvas as they are: a system colour is not looked up, its
// low 24 bits are taken as an RGB value.
ColorRef Untranslated(OleColor color)
{
    return ColorRef(color & 0xFFFFFF);
}

// Positions and text widths use a fixed 15 twips per pixel whatever the screen's ratio.
int32_t Pixels(double twips)
{
    return RoundToLong(twips / 15);
}

} // namespace

// The whole label is drawn off screen in pixels, then copied to the surface in one go. The
// off-screen image, with the drawing objects it made, is kept for the next paint.
void TolvaLabel::DrawLabel()
{
    const double scaleWidth = m_surface.ScaleWidth();
    const double scaleHeight = m_surface.ScaleHeight();
    const int32_t bitmapWidth = RoundToLong(scaleWidth) / std::max(1, m_surface.TwipsPerPixelX());
    const int32_t bitmapHeight = RoundToLong(scaleHeight) / std::max(1, m_surface.TwipsPerPixelY());
    if (bitmapWidth <= 0 || bitmapHeight <= 0) {
        ScanCaption(m_caption, m_surface); // nothing to show, but the access key still counts
        return;
    }
    Canvas& canvas = m_buffer.Sized(bitmapWidth, bitmapHeight);
    const int32_t width = Pixels(scaleWidth);
    const int32_t height = Pixels(scaleHeight);

    // A disabled label shows the pushed background on purpose.
    OleColor back = m_surface.BackColor();
    OleColor fore = m_surface.ForeColor();
    if (!m_surface.Enabled()) {
        back = m_backColorPushed;
        fore = m_foreColorDisabled;
    } else if (m_mouse.pushed) {
        back = m_backColorPushed;
        fore = m_foreColorPushed;
    } else if (m_mouse.hot) {
        back = m_backColorActive;
        fore = m_foreColorActive;
    }
    canvas.FillRect(0, 0, width, height, Untranslated(back));

    const int32_t letterSpacing = m_kerning ? 2 : 0;
    const CaptionLayout caption = LayOutCaption(canvas, m_surface, m_caption, letterSpacing);
    const double spaceHeight
        = double(canvas.MeasureText(u" ", ToCanvasFont(m_surface.GetFont())).height) * m_surface.TwipsPerPixelY();
    Rect text { 0, RoundToLong(scaleHeight / 30 - spaceHeight / 30 - 1), width, height };
    if (m_alignment == tkLabelAlignment::tkAlignCenter)
        text.left = RoundToLong(scaleWidth / 30 - double(caption.width) / 2);
    else
        text.left = m_arrowPosition == tkArrowPosition::tkLeft ? 16 : 6;
    DrawCaptionText(canvas, m_surface, caption, text, Untranslated(fore));

    const int32_t glyphY = RoundToLong(scaleHeight / 30 - 3);
    LinePen pen(canvas, Untranslated(fore));
    switch (m_arrowPosition) {
    case tkArrowPosition::tkLeft:
        DrawArrowGlyph(pen, m_arrowIcon, m_arrowPosition, 4, glyphY);
        break;
    case tkArrowPosition::tkRight:
        DrawArrowGlyph(pen, m_arrowIcon, m_arrowPosition, 10 + caption.width, glyphY);
        break;
    case tkArrowPosition::tkEnd:
        DrawArrowGlyph(pen, m_arrowIcon, m_arrowPosition, RoundToLong(scaleWidth / 15 - 9), glyphY);
        break;
    default:
        break;
    }

    m_surface.Present(canvas, 0, 0, width, height);
}

} // namespace tolva
