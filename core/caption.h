#pragma once
#include "core/canvas.h"
#include "core/string.h"
#include "core/surface.h"
#include <vector>

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

// A scanned caption with the step after each of its characters: the character's width in the
// surface's font plus the letter spacing, in pixels.
struct CaptionLayout {
    ScannedCaption scanned;
    std::vector<int32_t> steps;
    int32_t width = 0; // the sum of the steps
};

// Scans and measures a caption; the surface's access-key list is left as it is.
CaptionLayout LayOutCaption(Canvas& canvas, const Surface& surface, StringView caption, int32_t letterSpacing);

// Draws a laid-out caption one character after another from the rectangle's top-left corner, the
// access character underlined, and sets the surface's access-key list to it. The fonts are the
// surface's font at a height of 1.6 pixels per point.
void DrawCaptionText(Canvas& canvas, Surface& surface, const CaptionLayout& layout, Rect rect, ColorRef color);

} // namespace tolva
