#include "controls/tabs/tolva_tabs.h"
#include "core/caption.h"
#include <algorithm>

namespace tolva {

// The whole strip is drawn off screen in twips, then copied to the surface in one go. The
// access-key string is rebuilt on the way, one character per tab that marks one, in tab order.
void TolvaTabs::Redraw()
{
    TwipsCanvas& buffer = m_picBuffer;
    const float width = m_surface.Width();
    const float height = m_surface.Height();
    buffer.SetSize(width, height);
    buffer.SetBackColor(m_backColorBehind);
    String accessKeys;

    if (m_tabCount == 0) {
        buffer.Box(0, 0, width - 15, height - 15, m_borderColor);
        buffer.FilledBox(15, 15, width - 30, height - 30, m_surface.BackColor());
    } else {
        buffer.SetFont(m_surface.GetFont());
        const float textHeight = buffer.TextHeight(u" ");
        buffer.Box(0, textHeight + 30, width - 15, height - 15, m_borderColor);
        buffer.FilledBox(15, textHeight + 45, width - 30, height - 30, m_surface.BackColor());
        // A count loaded larger than the saved captions leaves tabs with nothing to show: the row
        // ends with the last caption.
        const int32_t lastTab = std::min(m_tabCount, m_store.CaptionUpperBound());
        const double pitch = double(m_tabWidth) + 75;
        for (int32_t i = 1; i <= lastTab; ++i) {
            const ScannedCaption caption = ScanCaption(m_store.Caption(i));
            const auto x = float((i - 1) * pitch);
            if (x <= width) // a tab past the right edge shows nothing
                DrawTab(i, x, textHeight, caption);
            if (caption.HasAccessKey())
                accessKeys += caption.AccessCharacter();
        }
    }

    m_surface.SetAccessKeys(accessKeys);
    buffer.CopyToSurface();
}

// A tab is an outline over the folder's top edge, filled with the inactive colour; the selected
// one is filled with the folder's colour and has no bottom edge, so that it opens into the folder.
void TolvaTabs::DrawTab(int32_t index, float x, float textHeight, const ScannedCaption& caption)
{
    TwipsCanvas& buffer = m_picBuffer;
    const auto tabWidth = float(m_tabWidth);
    buffer.Box(x, 0, x + tabWidth, textHeight + 30, m_borderColor);
    if (index != m_selectedItem) {
        buffer.FilledBox(x + 15, 15, x + tabWidth - 15, textHeight + 15, m_backColorInactive);
    } else {
        buffer.Line(x + 15, textHeight + 30, x + tabWidth, textHeight + 30, m_surface.BackColor());
        buffer.FilledBox(x + 15, 15, x + tabWidth - 15, textHeight + 15, m_surface.BackColor());
    }
    buffer.SetCurrentX(x + 90);
    buffer.SetCurrentY(15);
    PrintCaption(caption);
}

// One character at a time from the current position, only the access character underlined.
// The captions are always in the button-text colour, whatever ForeColor says, and run over the
// tab's right edge when they are wider than it.
void TolvaTabs::PrintCaption(const ScannedCaption& scanned)
{
    TwipsCanvas& buffer = m_picBuffer;
    buffer.SetForeColor(SystemColor::ButtonText);
    for (size_t i = 0; i < scanned.text.size(); ++i) {
        const bool access = int(i) + 1 == scanned.accessPosition;
        buffer.SetFontUnderline(access);
        buffer.Print(StringView(scanned.text).substr(i, 1));
    }
    buffer.SetFontUnderline(false);
}

} // namespace tolva
