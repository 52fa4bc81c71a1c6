#pragma once
#include "core/canvas.h"
#include "core/rect.h"
#include "core/string.h"
#include <array>
#include <optional>

namespace tolva {

// The calculator's keys, in the order of its key images: imgNumpad 0 to 9, then imgAdd, imgSub,
// imgMul, imgDiv, imgEqu, imgDec, imgNeg, imgBksp and imgC.
namespace CalculatorKey {
enum : int { Add = 10, Sub, Mul, Div, Equ, Dec, Neg, Bksp, C, Count };
}

struct KeyImage {
    StringView message; // what the key sends; a digit sends "#" with its number
    StringView caption; // empty for the backspace arrow, which is drawn
    Rect place; // on the keypad, pixels
};

const std::array<KeyImage, CalculatorKey::Count>& CalculatorKeys();

// The key under a point of the keypad (pixels), if any.
std::optional<int> CalculatorKeyAt(int32_t x, int32_t y);

// The keypad's size in pixels.
constexpr int32_t CalculatorWidth = 137;
constexpr int32_t CalculatorHeight = 130;

// Draws one key in its released or pressed look at its place on the canvas.
void DrawCalculatorKey(Canvas& canvas, int key, bool pressed, const CanvasFont& font);

} // namespace tolva
