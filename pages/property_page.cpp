#include "pages/property_page.h"
#include "core/caption.h"
#include "core/twips_canvas.h"

namespace tolva {

namespace {

constexpr OleColor ButtonFace = 0x8000000F;
constexpr OleColor ButtonText = 0x80000012;
constexpr OleColor ButtonShadow = 0x80000010;

} // namespace

PropertyPage::PropertyPage(Surface& surface, ControlSite& site, String caption, float width, float height)
    : m_surface(surface)
    , m_site(site)
    , m_caption(std::move(caption))
    , m_width(width)
    , m_height(height)
{
    m_surface.SetFont(PageFont());
    m_surface.SetListener(this);
}

PropertyPage::~PropertyPage()
{
    m_surface.SetListener(nullptr);
}

Font PropertyPage::PageFont()
{
    return Font { .name = u"Tahoma", .size = 8 };
}

void PropertyPage::SetObjects(std::vector<std::shared_ptr<PageTarget>> objects)
{
    m_objects = std::move(objects);
    if (m_objects.empty())
        return;
    m_loading = true;
    struct EndLoading {
        bool& loading;
        ~EndLoading() { loading = false; }
    } endLoading { m_loading };
    SelectionChanged();
}

void PropertyPage::SetChanged(bool changed)
{
    const bool raised = changed && !m_changed;
    m_changed = changed;
    if (raised && m_statusListener)
        m_statusListener->OnStatusChange();
}

void PropertyPage::MarkChanged()
{
    if (!m_loading)
        SetChanged(true);
}

void PropertyPage::Apply()
{
    if (m_objects.empty())
        return;
    ApplyChanges();
    m_changed = false;
}

void PropertyPage::LoadCheck(CheckBox& box, StringView property)
{
    box.SetValue(int16_t(FirstSelected().Read(property).ToInt32() & 1));
}

void PropertyPage::ApplyCheck(const CheckBox& box, StringView property)
{
    FirstSelected().Write(property, box.Value() == 1);
}

void PropertyPage::AddLabel(String caption, FieldPlace place)
{
    m_labels.push_back({ std::move(caption), place });
}

void PropertyPage::AddTitle(FieldPlace place)
{
    m_labels.push_back({ u"General Properties", place, true });
    m_shapes.push_back({ place.left, place.top + place.height, m_width - 2 * place.left, 15 });
}

PageTextBox& PropertyPage::AddTextBox(FieldPlace place, bool editsMark)
{
    auto box = std::make_unique<PageTextBox>(m_surface, place, [this, editsMark] {
        if (editsMark)
            MarkChanged();
    });
    box->operator*().SetFont(PageFont());
    return *m_textBoxes.emplace_back(std::move(box));
}

CheckBox& PropertyPage::AddCheckBox(String caption, FieldPlace place)
{
    return *m_checkBoxes.emplace_back(std::make_unique<CheckBox>(std::move(caption), place, [this] { MarkChanged(); }));
}

OptionGroup& PropertyPage::AddOptionGroup(std::vector<OptionGroup::Button> buttons)
{
    return *m_optionGroups.emplace_back(std::make_unique<OptionGroup>(std::move(buttons), [this] { MarkChanged(); }));
}

void PropertyPage::OnPaint()
{
    const int32_t tx = m_surface.TwipsPerPixelX();
    const int32_t ty = m_surface.TwipsPerPixelY();
    const auto pixels = [&](const FieldPlace& p) {
        return Rect { int32_t(p.left) / tx, int32_t(p.top) / ty, int32_t(p.left + p.width) / tx,
                      int32_t(p.top + p.height) / ty };
    };
    const int32_t width = int32_t(m_surface.ScaleWidth()) / tx;
    const int32_t height = int32_t(m_surface.ScaleHeight()) / ty;
    if (width <= 0 || height <= 0)
        return;
    auto canvas = m_surface.CreateCanvas(width, height);
    canvas->FillRect(0, 0, width, height, TranslateColor(*canvas, ButtonFace));
    for (const auto& box : m_textBoxes) {
        TextBox& field = **box;
        Rect frame = pixels({ field.Left(), field.Top(), field.Width(), field.Height() });
        canvas->Frame({ frame.left - 1, frame.top - 1, frame.right + 1, frame.bottom + 1 },
                      TranslateColor(*canvas, ButtonShadow));
    }
    for (const FieldPlace& shape : m_shapes) {
        const Rect r = pixels(shape);
        canvas->Line(r.left, r.top, r.right, r.top, TranslateColor(*canvas, ButtonShadow));
    }
    CanvasFont font = ToCanvasFont(PageFont());
    for (const Label& label : m_labels) {
        CanvasFont labelFont = font;
        if (label.bold)
            labelFont.weight = 700;
        const Rect r = pixels(label.place);
        DrawingArea area(*canvas, r);
        canvas->DrawText(0, 0, ScanCaption(label.caption).text, labelFont, TranslateColor(*canvas, ButtonText));
    }
    PaintPictures(*canvas);
    m_surface.Present(*canvas, 0, 0, width, height);
}

} // namespace tolva
