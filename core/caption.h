#pragma once
#include "core/canvas.h"
#include "core/string.h"
#include "core/surface.h"

namespace tolva {

// A caption with its access-key marks removed.
struct ScannedCaption {
    String text;
    int accessPosition = 0; // 1-based index into text of the access character; 0 for none

    bool HasAccessKey() const { return accessPosition > 0; }
    char16_t AccessCharacter() const { return HasAccessKey() ? text[accessPosition - 1] : u'\0'; }
    StringView Before() const; // the text before the access character (all of it when none)
    StringView After() const;  // the text after the access character (empty when none)
    bool operator==(const ScannedCaption&) const = default;
};

// "&x" marks x as the access character, "&&" stands for "&", a trailing "&" is dropped and a
// later mark overrides an earlier one.
ScannedCaption ScanCaption(StringView caption);

// Scans the caption and sets the surface's access-key list to its access character (or clears it).
ScannedCaption ScanCaption(StringView caption, Surface& surface);

// Draws a caption one character at a time from the rectangle's top-left corner, the access
// character underlined, each step the character's width in the surface's font plus
// letterSpacing pixels. The fonts are the surface's font at a height of 1.6 pixels per point.
void DrawCaptionText(Canvas& canvas, Surface& surface, StringView caption, Rect rect, int32_t letterSpacing,
                     ColorRef color);

// The width in pixels that DrawCaptionText advances over the whole scanned caption.
int32_t MeasureCaptionText(Canvas& canvas, Surface& surface, StringView caption, int32_t letterSpacing);

} // namespace tolva
