#include "controls/label/arrow_glyph.h"
#include "controls/label/tolva_label_enums.h"

namespace tolva {

namespace {

enum class Pointing { Left, Right, Up, Down };

constexpr int32_t GlyphSize = 5;
constexpr int32_t SmallGlyphSize = 3;

// A triangle of size s is s \ 2 + 2 parallel lines, from its base (s + 2 pixels long) to its
// apex (1 pixel), so that the pen ends just past the apex. All four fit the box whose top-left
// corner is (x, y): a right-pointing triangle has its base on column x and its apex at
// (x + s \ 2 + 1, y + s \ 2 + 1); the others are that figure mirrored or turned.
void DrawTriangle(LinePen& pen, Pointing pointing, int32_t size, int32_t x, int32_t y)
{
    const int32_t lines = size / 2 + 2;
    for (int32_t i = 0; i < lines; ++i) {
        const int32_t from = i;
        const int32_t to = size + 2 - i;
        switch (pointing) {
        case Pointing::Right:
            pen.MoveTo(x + i, y + from);
            pen.LineTo(x + i, y + to);
            break;
        case Pointing::Left:
            pen.MoveTo(x + lines - 1 - i, y + from);
            pen.LineTo(x + lines - 1 - i, y + to);
            break;
        case Pointing::Down:
            pen.MoveTo(x + from, y + i);
            pen.LineTo(x + to, y + i);
            break;
        case Pointing::Up:
            pen.MoveTo(x + from, y + lines - 1 - i);
            pen.LineTo(x + to, y + lines - 1 - i);
            break;
        }
    }
}

// A pointer is a triangle with a shaft: the pen stands just below the apex after the triangle,
// so the shaft starts one row up, on the apex, and runs back through the triangle to shaftEnd.
void DrawPointer(LinePen& pen, Pointing pointing, int32_t x, int32_t y, int32_t shaftEnd)
{
    DrawTriangle(pen, pointing, GlyphSize, x, y);
    const PixelPoint pastApex = pen.CurrentPosition();
    pen.MoveTo(pastApex.x, pastApex.y - 1);
    pen.LineTo(shaftEnd, pastApex.y - 1);
}

bool IsHorizontal(int32_t icon)
{
    return icon == tkArrowIcon::tkArrowLeft || icon == tkArrowIcon::tkArrowRight;
}

bool IsVertical(int32_t icon)
{
    return icon == tkArrowIcon::tkArrowUp || icon == tkArrowIcon::tkArrowDown;
}

} // namespace

void DrawArrowGlyph(LinePen& pen, int32_t icon, int32_t position, int32_t x, int32_t y)
{
    if (position == tkArrowPosition::tkLeft || position == tkArrowPosition::tkRight) {
        if (IsHorizontal(icon))
            x += 2;
        else if (IsVertical(icon))
            y += 2;
    } else if (position == tkArrowPosition::tkEnd && IsVertical(icon)) {
        x -= 3;
        y += 2;
    }

    switch (icon) {
    case tkArrowIcon::tkArrowLeft:
        DrawTriangle(pen, Pointing::Left, GlyphSize, x, y);
        break;
    case tkArrowIcon::tkArrowRight:
        DrawTriangle(pen, Pointing::Right, GlyphSize, x, y);
        break;
    case tkArrowIcon::tkArrowUp:
        DrawTriangle(pen, Pointing::Up, GlyphSize, x - 1, y);
        break;
    case tkArrowIcon::tkArrowDown:
        // The smaller arrow after the caption sits on the text line.
        DrawTriangle(pen, Pointing::Down, position == tkArrowPosition::tkRight ? SmallGlyphSize : GlyphSize, x - 1, y);
        break;
    case tkArrowIcon::tkPointerLeft:
        DrawPointer(pen, Pointing::Left, x, y, x + 7);
        break;
    case tkArrowIcon::tkPointerRight: {
        const int32_t left = x + 3;
        DrawPointer(pen, Pointing::Right, left, y, left - 4);
        break;
    }
    default:
        break;
    }
}

} // namespace tolva
