#include "pages/ppg_label.h"
#include "controls/label/arrow_glyph.h"
#include "controls/label/tolva_label_enums.h"
#include "pages/page_layout.h"

namespace tolva {

namespace {

constexpr float OptionHeight = 255;
constexpr float IconColumns = 3;
constexpr float IconWidth = 600;
constexpr float PictureWidth = 240; // picArrowIcon, left of its button

// A group's buttons in one row under its caption, each `width` twips wide.
std::vector<OptionGroup::Button> Row(std::initializer_list<const char16_t*> captions, float left, float top, float width)
{
    std::vector<OptionGroup::Button> buttons;
    for (const char16_t* caption : captions) {
        buttons.push_back({ caption, { left, top, width - 60, OptionHeight } });
        left += width;
    }
    return buttons;
}

// The six glyph buttons in two rows of three, each with room for its picture on the left.
std::vector<OptionGroup::Button> IconButtons(float left, float top)
{
    std::vector<OptionGroup::Button> buttons;
    for (int i = 0; i < 6; ++i) {
        const float x = left + (i % int(IconColumns)) * IconWidth + PictureWidth;
        const float y = top + (i / int(IconColumns)) * (OptionHeight + 45);
        buttons.push_back({ u"", { x, y, 255, OptionHeight } });
    }
    return buttons;
}

// Reads an enumeration into its group: the button of that index is set, none for other values.
void LoadOption(OptionGroup& group, PageTarget& control, StringView property)
{
    group.SetValue(size_t(control.Read(property).ToInt32()));
}

// The first button set, walked in index order; no button set leaves the property alone.
void ApplyOption(const OptionGroup& group, PageTarget& control, StringView property)
{
    for (size_t i = 0; i < group.Buttons().size(); ++i) {
        if (group.Value(i)) {
            control.Write(property, int32_t(i));
            return;
        }
    }
}

constexpr float Left = PageLayout::Margin;
constexpr float GroupLeft = PageLayout::FieldLeft;
constexpr float AlignTop = PageLayout::RowTop(1);
constexpr float IconTop = PageLayout::RowTop(2);
constexpr float PositionTop = IconTop + 2 * (OptionHeight + 45) + 60;
constexpr float ChecksTop = PositionTop + 420;

} // namespace

ppgLabel::ppgLabel(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
    , m_txtCaption(AddTextBox(PageLayout::Field(0)))
    , m_optAlign(AddOptionGroup(Row({ u"tkAlignLeft", u"tkAlignCenter" }, GroupLeft, AlignTop, 1500)))
    , m_optArrowIcon(AddOptionGroup(IconButtons(GroupLeft, IconTop)))
    , m_optArrowPosition(AddOptionGroup(Row({ u"tkNone", u"tkLeft", u"tkRight", u"tkEnd" }, GroupLeft, PositionTop, 1000)))
    , m_chkEnabled(AddCheckBox(u"Enabled", { GroupLeft, ChecksTop, 1400, OptionHeight }))
    , m_chkKerning(AddCheckBox(u"Kerning", { GroupLeft + 1500, ChecksTop, 1400, OptionHeight }))
{
    AddTitle(PageLayout::Title());
    AddLabel(u"Caption", PageLayout::Label(0));
    AddLabel(u"Alignment", { Left, AlignTop, PageLayout::LabelWidth, OptionHeight });
    AddLabel(u"ArrowIcon", { Left, IconTop, PageLayout::LabelWidth, OptionHeight });
    AddLabel(u"ArrowPosition", { Left, PositionTop, PageLayout::LabelWidth, OptionHeight });
}

void ppgLabel::SelectionChanged()
{
    PageTarget& control = FirstSelected();
    m_txtCaption.SetText(control.Read(u"Caption").ToString());
    LoadOption(m_optAlign, control, u"Alignment");
    LoadOption(m_optArrowIcon, control, u"ArrowIcon");
    LoadOption(m_optArrowPosition, control, u"ArrowPosition");
    LoadCheck(m_chkEnabled, u"Enabled");
    LoadCheck(m_chkKerning, u"Kerning");
}

void ppgLabel::ApplyChanges()
{
    PageTarget& control = FirstSelected();
    control.Write(u"Caption", m_txtCaption.Text());
    ApplyOption(m_optAlign, control, u"Alignment");
    ApplyOption(m_optArrowIcon, control, u"ArrowIcon");
    ApplyOption(m_optArrowPosition, control, u"ArrowPosition");
    ApplyCheck(m_chkEnabled, u"Enabled");
    ApplyCheck(m_chkKerning, u"Kerning");
}

// picArrowIcon: each glyph as the label draws it at the end of a button-sized box, left of its
// option button.
void ppgLabel::PaintPictures(Canvas& canvas)
{
    const int32_t tx = m_surface.TwipsPerPixelX();
    const int32_t ty = m_surface.TwipsPerPixelY();
    const ColorRef ink = TranslateColor(canvas, 0x80000012);
    const auto& buttons = m_optArrowIcon.Buttons();
    for (size_t icon = 0; icon < buttons.size(); ++icon) {
        const FieldPlace& place = buttons[icon].place;
        const int32_t x = int32_t(place.left - PictureWidth) / tx;
        const int32_t y = int32_t(place.top) / ty;
        LinePen pen(canvas, ink);
        DrawArrowGlyph(pen, int32_t(icon), tkArrowPosition::tkLeft, x + 4, y + int32_t(OptionHeight) / ty / 2);
    }
}

} // namespace tolva
