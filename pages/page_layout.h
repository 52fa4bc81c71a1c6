#pragma once
#include "pages/page_fields.h"

namespace tolva {

// The common grid of the pages, in twips: the title at the top with its rule beneath, then
// rows of a caption on the left and its field on the right.
namespace PageLayout {

constexpr float Width = 6000;
constexpr float Height = 3900;
constexpr float Margin = 180;
constexpr float FirstRow = 600;
constexpr float RowStep = 420;
constexpr float LabelWidth = 1500;
constexpr float FieldLeft = Margin + LabelWidth;
constexpr float FieldHeight = 300;

constexpr FieldPlace Title() { return { Margin, 120, 3600, 255 }; }
constexpr float RowTop(int row) { return FirstRow + row * RowStep; }
constexpr FieldPlace Label(int row) { return { Margin, RowTop(row) + 45, LabelWidth - 60, 255 }; }
constexpr FieldPlace Field(int row, float width = 3000) { return { FieldLeft, RowTop(row), width, FieldHeight }; }
constexpr FieldPlace Check(int row, float left = FieldLeft) { return { left, RowTop(row), 2700, 255 }; }

} // namespace PageLayout

} // namespace tolva
