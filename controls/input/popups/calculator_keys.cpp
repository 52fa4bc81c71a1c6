#include "controls/input/popups/calculator_keys.h"
#include "core/line_pen.h"
#include "core/ole_color.h"

namespace tolva {

namespace {

// Keys of 30 x 22 pixels, 3 apart, four to a row and five rows; 0 takes two places.
constexpr int32_t Margin = 4;
constexpr int32_t KeyWidth = 30;
constexpr int32_t KeyHeight = 22;
constexpr int32_t Gap = 3;

constexpr Rect At(int column, int row, int span = 1)
{
    const int32_t left = Margin + column * (KeyWidth + Gap);
    const int32_t top = Margin + row * (KeyHeight + Gap);
    return { left, top, left + span * KeyWidth + (span - 1) * Gap, top + KeyHeight };
}

// Faces: digits light, operators a shade darker, "=" amber; a pressed key is dark with white
// text, sunk by a pixel.
constexpr ColorRef Black = 0x000000;
constexpr ColorRef White = 0xFFFFFF;
constexpr ColorRef Shadow = 0x808080;
constexpr ColorRef DigitFace = 0xDEE7EF;
constexpr ColorRef OperatorFace = 0xCEDBDE;
constexpr ColorRef EqualsFace = 0x9CDFF7;
constexpr ColorRef PressedFace = 0x4A5152;

ColorRef FaceOf(int key)
{
    if (key < 10 || key == CalculatorKey::Dec)
        return DigitFace;
    return key == CalculatorKey::Equ ? EqualsFace : OperatorFace;
}

// A left arrow with its head: the backspace key.
void DrawBackspaceArrow(Canvas& canvas, int32_t cx, int32_t cy, ColorRef color)
{
    canvas.Line(cx - 6, cy, cx + 7, cy, color);
    canvas.Line(cx - 6, cy + 1, cx + 7, cy + 1, color);
    for (int32_t i = 1; i <= 3; ++i) {
        canvas.Line(cx - 6 + i, cy - i, cx - 6 + i, cy + 2 + i, color);
    }
}

} // namespace

const std::array<KeyImage, CalculatorKey::Count>& CalculatorKeys()
{
    static const std::array<KeyImage, CalculatorKey::Count> keys { {
        { u"0", u"0", At(0, 4, 2) },
        { u"1", u"1", At(0, 3) },
        { u"2", u"2", At(1, 3) },
        { u"3", u"3", At(2, 3) },
        { u"4", u"4", At(0, 2) },
        { u"5", u"5", At(1, 2) },
        { u"6", u"6", At(2, 2) },
        { u"7", u"7", At(0, 1) },
        { u"8", u"8", At(1, 1) },
        { u"9", u"9", At(2, 1) },
        { u"+", u"+", At(3, 3) },
        { u"-", u"-", At(3, 2) },
        { u"*", u"\u00D7", At(3, 1) },
        { u"/", u"\u00F7", At(3, 0) },
        { u"=", u"=", At(3, 4) },
        { u".", u".", At(2, 4) },
        { u"S", u"\u00B1", At(2, 0) },
        { u"B", u"", At(1, 0) },
        { u"C", u"C", At(0, 0) },
    } };
    return keys;
}

std::optional<int> CalculatorKeyAt(int32_t x, int32_t y)
{
    const auto& keys = CalculatorKeys();
    for (int key = 0; key < CalculatorKey::Count; ++key)
        if (keys[size_t(key)].place.Contains(x, y))
            return key;
    return std::nullopt;
}

void DrawCalculatorKey(Canvas& canvas, int key, bool pressed, const CanvasFont& font)
{
    const KeyImage& image = CalculatorKeys()[size_t(key)];
    const Rect& r = image.place;
    canvas.Fill(r, pressed ? PressedFace : FaceOf(key));
    canvas.Frame(r, Black);
    // A raised key is lit from the top left; a pressed one sinks and shows no light.
    if (!pressed) {
        canvas.Line(r.left + 1, r.top + 1, r.right - 1, r.top + 1, White);
        canvas.Line(r.left + 1, r.top + 1, r.left + 1, r.bottom - 1, White);
        canvas.Line(r.left + 1, r.bottom - 2, r.right - 1, r.bottom - 2, Shadow);
        canvas.Line(r.right - 2, r.top + 1, r.right - 2, r.bottom - 1, Shadow);
    }
    const int32_t sink = pressed ? 1 : 0;
    const ColorRef ink = pressed ? White : Black;
    const int32_t cx = (r.left + r.right) / 2 + sink;
    const int32_t cy = (r.top + r.bottom) / 2 + sink;
    if (image.caption.empty()) {
        DrawBackspaceArrow(canvas, cx, cy - 1, ink);
        return;
    }
    const TextExtent extent = canvas.MeasureText(image.caption, font);
    canvas.DrawText(cx - extent.width / 2, cy - extent.height / 2, image.caption, font, ink);
}

} // namespace tolva
