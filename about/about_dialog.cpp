#include "about/about_dialog.h"

namespace tolva {

namespace {

constexpr int16_t Margin = 7;
constexpr int16_t TextWidth = 160;
constexpr int16_t LineHeight = 10;
constexpr int16_t ButtonWidth = 50;
constexpr int16_t ButtonHeight = 14;

} // namespace

std::vector<AboutDialog::TextItem> AboutDialog::Lines() const
{
    return {
        { u"TolvaKit", { Margin, Margin, TextWidth, LineHeight }, true },
        { String(u"Version ") + Version, { Margin, Margin + LineHeight + 2, TextWidth, LineHeight }, false },
        { u"Controls for financial data-entry forms", { Margin, Margin + 2 * (LineHeight + 2), TextWidth, LineHeight },
            false },
    };
}

AboutDialog::Box AboutDialog::CloseButton() const
{
    const int16_t top = Margin + 3 * (LineHeight + 2) + Margin;
    return { int16_t(Margin + TextWidth - ButtonWidth), top, ButtonWidth, ButtonHeight };
}

AboutDialog::Box AboutDialog::Client() const
{
    const Box button = CloseButton();
    return { 0, 0, int16_t(Margin + TextWidth + Margin), int16_t(button.y + button.height + Margin) };
}

} // namespace tolva
