#include "tools/render/text_boxes.h"
#include <gtest/gtest.h>

namespace tolva::render {
namespace {

using headless::RasterCanvas;

constexpr ColorRef White = 0xFFFFFF, Black = 0;

RasterCanvas Blank()
{
    RasterCanvas canvas(80, 40);
    canvas.FillRect(0, 0, 80, 40, White);
    return canvas;
}

// Two words on a line, a word of another line, and a glyph that the text's width moves.
TEST(TextBoxes, OneBoxPerWordOrLineAndForWhatTheTextPlaces)
{
    RasterCanvas text = Blank(), hidden = Blank(), wider = Blank();
    text.FillRect(5, 5, 10, 12, Black); // "ab"
    text.FillRect(13, 5, 18, 12, Black); // "cd", 3 pixels on: the same line
    text.FillRect(40, 5, 45, 12, Black); // far away: another box
    text.FillRect(5, 25, 9, 32, Black); // the next line
    for (RasterCanvas* picture : { &text, &hidden })
        picture->FillRect(60, 30, 63, 33, Black); // a glyph after a caption ...
    wider.FillRect(64, 30, 67, 33, Black); // ... which wider text moves

    const std::vector<PixelBox> boxes = TextBoxes(text, hidden, wider, 4, 2);
    const std::vector<PixelBox> expected { { 3, 3, 20, 14 }, { 38, 3, 47, 14 }, { 3, 23, 11, 34 }, { 58, 28, 69, 35 } };
    EXPECT_EQ(boxes, expected);
}

TEST(TextBoxes, NoneWhereNothingDiffers)
{
    const RasterCanvas picture = Blank();
    EXPECT_TRUE(TextBoxes(picture, picture, picture).empty());
}

} // namespace
} // namespace tolva::render
