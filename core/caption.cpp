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

namespace {

void SetAccessKey(Surface& surface, const ScannedCaption& scanned)
{
    surface.SetAccessKeys(scanned.HasAccessKey() ? String(1, scanned.AccessCharacter()) : String());
}

// The fonts DrawCaptionText creates: the surface's font with a cell height of 1.6 pixels per
// point, rounded as a whole-number argument is (half to even).
CanvasFont CaptionFont(const Font& font, bool underline)
{
    CanvasFont canvasFont = ToCanvasFont(font);
    canvasFont.height = int32_t(std::nearbyint(DrawableSize(font) * 1.6));
    canvasFont.underline = underline;
    return canvasFont;
}

} // namespace

ScannedCaption ScanCaption(StringView caption, Surface& surface)
{
    ScannedCaption scanned = ScanCaption(caption);
    SetAccessKey(surface, scanned);
    return scanned;
}

CaptionLayout LayOutCaption(Canvas& canvas, const Surface& surface, StringView caption, int32_t letterSpacing)
{
    CaptionLayout layout { ScanCaption(caption), {}, 0 };
    const CanvasFont measureFont = ToCanvasFont(surface.GetFont());
    layout.steps.reserve(layout.scanned.text.size());
    for (char16_t character : layout.scanned.text) {
        layout.steps.push_back(canvas.MeasureText(StringView(&character, 1), measureFont).width + letterSpacing);
        layout.width += layout.steps.back();
    }
    return layout;
}

// The characters before the access character, the access character underlined, then the rest,
// each piece in one call.
void DrawCaptionText(Canvas& canvas, Surface& surface, const CaptionLayout& layout, Rect rect, ColorRef color)
{
    SetAccessKey(surface, layout.scanned);
    const Font font = surface.GetFont();
    const CanvasFont plain = CaptionFont(font, font.underline);
    const CanvasFont underlined = CaptionFont(font, true);
    const StringView text = layout.scanned.text;
    const std::span<const int32_t> steps = layout.steps;
    size_t begin = 0;
    int32_t x = rect.left;
    const auto drawUpTo = [&](size_t end, const CanvasFont& pieceFont) {
        canvas.DrawCharacters(x, rect.top, text.substr(begin, end - begin), steps.subspan(begin, end - begin),
            pieceFont, color);
        for (; begin < end; ++begin)
            x += steps[begin];
    };
    if (const auto access = size_t(layout.scanned.accessPosition); access > 0) {
        drawUpTo(access - 1, plain);
        drawUpTo(access, underlined);
    }
    drawUpTo(text.size(), plain);
}

} // namespace tolva
