#include "about/about_dialog.h"

namespace tolva {

namespace {

constexpr int16_t Margin = 7;
constexpr int16_t TextWidth = 160;
constexpr int16_t LineHeight = 10;
constexpr int16_t LineCount = 3;
constexpr int16_t ButtonWidth = 50;
constexpr int16_t ButtonHeight = 14;
// A toolbox image is 16 x 15 pixels: about 11 x 10 units of the 8-point dialog font.
constexpr int16_t ImageWidth = 11;
constexpr int16_t ImageHeight = 10;
constexpr int16_t ImageGap = 4;
constexpr size_t ImagesPerRow = (TextWidth + ImageGap) / (ImageWidth + ImageGap);

constexpr int16_t LineTop(int16_t line)
{
    return Margin + line * (LineHeight + 2);
}

} // namespace

AboutDialog::AboutDialog(std::vector<String> controls)
    : m_controls(std::move(controls))
{ }

std::vector<AboutDialog::TextItem> AboutDialog::Lines() const
{
    return {
        { u"TolvaKit", { Margin, LineTop(0), TextWidth, LineHeight }, true },
        { String(u"Version ") + Version, { Margin, LineTop(1), TextWidth, LineHeight }, false },
        { u"Controls for financial data-entry forms", { Margin, LineTop(2), TextWidth, LineHeight }, false },
    };
}

std::vector<AboutDialog::ImageItem> AboutDialog::Images() const
{
    std::vector<ImageItem> images;
    for (size_t i = 0; i < m_controls.size(); ++i) {
        const auto left = int16_t(Margin + i % ImagesPerRow * (ImageWidth + ImageGap));
        const auto top = int16_t(LineTop(LineCount) + i / ImagesPerRow * (ImageHeight + ImageGap));
        images.push_back({ m_controls[i], { left, top, ImageWidth, ImageHeight } });
    }
    return images;
}

int16_t AboutDialog::ImagesBottom() const
{
    const size_t rows = (m_controls.size() + ImagesPerRow - 1) / ImagesPerRow;
    return int16_t(LineTop(LineCount) + rows * (ImageHeight + ImageGap));
}

AboutDialog::Box AboutDialog::CloseButton() const
{
    const auto top = int16_t(ImagesBottom() + Margin);
    return { int16_t(Margin + TextWidth - ButtonWidth), top, ButtonWidth, ButtonHeight };
}

AboutDialog::Box AboutDialog::Client() const
{
    const Box button = CloseButton();
    return { 0, 0, int16_t(Margin + TextWidth + Margin), int16_t(button.y + button.height + Margin) };
}

} // namespace tolva
