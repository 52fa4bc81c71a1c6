#include "core/caption.h"
#include "core/twips_canvas.h"
#include <cmath>

namespace tolva {

StringView ScannedCaption::Before() const
{
    return HasAccessKey() ? StringView(text).substr(0, size_t(accessPosition - 1)) : StringView(text);
}

StringView ScannedCaption::After() const
{
    return HasAccessKey() ? StringView(text).substr(size_t(accessPosition)) : StringView();
}

ScannedCaption ScanCaption(StringView caption)
{
    ScannedCaption scanned;
    for (size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] != u'&') {
            scanned.text += caption[i];
        } else if (i + 1 == caption.size()) {
            // a trailing mark marks nothing and is dropped
        } else if (caption[i + 1] == u'&') {
            scanned.text += u'&';
            ++i;
        } else {
            scanned.accessPosition = int(scanned.text.size()) + 1;
        }
    }
    return scanned;
}

ScannedCaption ScanCaption(StringView caption, Surface& surface)
{
    ScannedCaption scanned = ScanCaption(caption);
    surface.SetAccessKeys(scanned.HasAccessKey() ? String(1, scanned.AccessCharacter()) : String());
    return scanned;
}

namespace {

// The fonts DrawCaptionText creates: the surface's font with a cell height of 1.6 pixels per
// point, rounded as a whole-number argument is (half to even).
CanvasFont CaptionFont(const Font& font, bool underline)
{
    CanvasFont canvasFont = ToCanvasFont(font);
    canvasFont.height = int32_t(std::nearbyint(DrawableSize(font) * 1.6));
    canvasFont.underline = underline;
    return canvasFont;
}

// The advance of one character: its width in the surface's own font plus the spacing.
int32_t Advance(Canvas& canvas, const CanvasFont& measureFont, char16_t character, int32_t letterSpacing)
{
    return canvas.MeasureText(StringView(&character, 1), measureFont).width + letterSpacing;
}

} // namespace

void DrawCaptionText(
    Canvas& canvas, Surface& surface, StringView caption, Rect rect, int32_t letterSpacing, ColorRef color)
{
    const ScannedCaption scanned = ScanCaption(caption, surface);
    const Font font = surface.GetFont();
    const CanvasFont measureFont = ToCanvasFont(font);
    const CanvasFont plain = CaptionFont(font, font.underline);
    const CanvasFont underlined = CaptionFont(font, true);
    int32_t x = rect.left;
    for (size_t i = 0; i < scanned.text.size(); ++i) {
        const bool access = int(i) + 1 == scanned.accessPosition;
        const char16_t character = scanned.text[i];
        canvas.DrawText(x, rect.top, StringView(&character, 1), access ? underlined : plain, color);
        x += Advance(canvas, measureFont, character, letterSpacing);
    }
}

int32_t MeasureCaptionText(Canvas& canvas, Surface& surface, StringView caption, int32_t letterSpacing)
{
    const ScannedCaption scanned = ScanCaption(caption);
    const CanvasFont measureFont = ToCanvasFont(surface.GetFont());
    int32_t width = 0;
    for (char16_t character : scanned.text)
        width += Advance(canvas, measureFont, character, letterSpacing);
    return width;
}

} // namespace tolva
