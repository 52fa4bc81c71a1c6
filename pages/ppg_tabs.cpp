#include "pages/ppg_tabs.h"
#include "pages/page_layout.h"

namespace tolva {

namespace {

constexpr float Left = PageLayout::Margin;
constexpr float ListTop = 1740;
constexpr float ListWidth = 3000;
constexpr float ButtonLeft = Left + ListWidth + 120;
constexpr float ButtonWidth = 820;

RowEditor::Places EditorPlaces()
{
    const auto button = [](int i) { return FieldPlace { ButtonLeft + i * (ButtonWidth + 60), 1320, ButtonWidth, 300 }; };
    return { .list = { Left, ListTop, ListWidth, 1980 },
             .add = button(0),
             .remove = button(1),
             .replace = button(2),
             .up = { ButtonLeft, ListTop, 255, 255 },
             .down = { ButtonLeft, ListTop + 300, 255, 255 } };
}

} // namespace

ppgTabs::ppgTabs(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"General", PageLayout::Width, PageLayout::Height)
    , m_txtTabWidth(AddTextBox({ PageLayout::FieldLeft, 870, 1200, 300 }))
    , m_txtTabText(AddTextBox({ Left, 1320, ListWidth, 300 }, false))
    , m_rows(surface, site, EditorPlaces(), false,
             { .add = [this] { Add(); },
               .replace = [this] { Replace(); },
               .open = [this] { Open(); },
               .changed = [this] { MarkChanged(); } })
    , m_ttProperties(surface, site, u"ttProperties")
{
    m_ttProperties.Window().Move(120, 60, PageLayout::Width - 240, 360);
    m_ttProperties->InitProperties();
    m_ttProperties->AddItem(u"General");
    AddTitle({ Left, 480, 3600, 255 });
    AddLabel(u"&TabWidth", { Left, 915, PageLayout::LabelWidth, 255 });
    m_rows.List().AddColumn(u"Column Text", tkColumnAlignment::tkColumnLeft, int32_t(ListWidth) - 15);
}

void ppgTabs::SelectionChanged()
{
    PageTarget& control = FirstSelected();
    m_txtTabWidth.SetText(control.Read(u"TabWidth").ToString());
    TolvaList& list = m_rows.List();
    list.Clear();
    const int32_t count = control.Read(u"TabCount").ToInt32();
    for (int32_t i = 1; i <= count; ++i)
        m_rows.InsertRow(0, { control.ReadAt(u"Tabs", i).ToString() });
}

void ppgTabs::ApplyChanges()
{
    PageTarget& control = FirstSelected();
    control.Write(u"TabWidth", m_txtTabWidth.Text());
    control.Call(u"Clear", {});
    TolvaList& list = m_rows.List();
    for (int32_t i = 1; i <= list.RowCount(); ++i)
        control.Call(u"AddItem", { list.RowText(i, 1) });
}

// A new row goes before the selected one, or last when none is selected.
void ppgTabs::Add()
{
    m_rows.InsertRow(m_rows.SelectedRow(), { m_txtTabText.Text() });
    m_txtTabText.SetText(u"");
    m_txtTabText->SetFocus();
    MarkChanged();
}

void ppgTabs::Replace()
{
    if (const int32_t row = m_rows.SelectedRow(); row >= 1)
        m_rows.SetRow(row, { m_txtTabText.Text() });
    MarkChanged();
}

void ppgTabs::Open()
{
    m_txtTabText.SetText(m_rows.List().RowText(m_rows.SelectedRow(), 1));
    m_txtTabText.SelectAllAndFocus();
}

} // namespace tolva
