#include "pages/ppg_columns.h"
#include "pages/leading_number.h"
#include "pages/page_layout.h"
#include <array>

namespace tolva {

namespace {

constexpr StringView DefaultWidth = u"1200";

// The alignment words in the order of tkColumnAlignment's values.
constexpr std::array<StringView, 3> AlignmentWords { u"Left", u"Right", u"Center" };

String AlignmentWord(int32_t alignment)
{
    return alignment >= 0 && alignment < int32_t(AlignmentWords.size()) ? String(AlignmentWords[alignment]) : String();
}

// A word that is none of the three applies as left.
int32_t AlignmentOf(StringView word)
{
    for (size_t i = 0; i < AlignmentWords.size(); ++i) {
        if (word == AlignmentWords[i])
            return int32_t(i);
    }
    return tkColumnAlignment::tkColumnLeft;
}

constexpr float Left = PageLayout::Margin;
constexpr float FieldsTop = 2400;
constexpr float ButtonsTop = 3360;

RowEditor::Places EditorPlaces()
{
    const auto button = [](int i) { return FieldPlace { Left + i * 900, ButtonsTop, 820, 300 }; };
    return { .list = { Left, 180, 5160, 1860 },
             .add = button(0),
             .remove = button(1),
             .replace = button(2),
             .up = { Left + 5280, 180, 255, 255 },
             .down = { Left + 5280, 480, 255, 255 } };
}

} // namespace

ppgColumns::ppgColumns(Surface& surface, ControlSite& site)
    : PropertyPage(surface, site, u"Columns", PageLayout::Width, PageLayout::Height)
    , m_rows(surface, site, EditorPlaces(), true,
             { .add = [this] { Add(); },
               .replace = [this] { Replace(); },
               .open = [this] { Open(); },
               .changed = [this] { MarkChanged(); } })
    , m_txtCaption(AddTextBox({ Left, FieldsTop, 2400, 300 }, false))
    , m_txtWidth(AddTextBox({ Left + 2520, FieldsTop, 1000, 300 }, false))
    , m_txtAlignment(surface, site, u"txtAlignment")
{
    TolvaList& list = m_rows.List();
    list.AddColumn(u"Caption", tkColumnAlignment::tkColumnLeft, 2700);
    list.AddColumn(u"Width", tkColumnAlignment::tkColumnRight, 1300);
    list.AddColumn(u"Alignment", tkColumnAlignment::tkColumnRight, 860);
    AddLabel(u"Caption", { Left, FieldsTop - 270, 2400, 255 });
    AddLabel(u"Width", { Left + 2520, FieldsTop - 270, 1000, 255 });
    AddLabel(u"Alignment", { Left + 3640, FieldsTop - 270, 1500, 255 });
    m_txtWidth.SetText(DefaultWidth);
    m_txtAlignment.Window().Move(Left + 3640, FieldsTop, 1500, 300);
    m_txtAlignment->InitProperties();
    m_txtAlignment->SetStyle(tkInputStyles::tkCombo);
    for (StringView word : { u"Left", u"Center", u"Right" })
        m_txtAlignment->AddItem(word);
    m_txtAlignment->SetText(u"Left");
}

void ppgColumns::SelectionChanged()
{
    PageTarget& control = FirstSelected();
    m_rows.List().Clear();
    const int32_t count = control.Read(u"ColumnCount").ToInt32();
    for (int32_t i = 1; i <= count; ++i)
        m_rows.InsertRow(0, { control.ReadAt(u"ColumnText", i).ToString(), control.ReadAt(u"ColumnWidth", i).ToString(),
                              AlignmentWord(control.ReadAt(u"ColumnAlignment", i).ToInt32()) });
}

void ppgColumns::ApplyChanges()
{
    PageTarget& control = FirstSelected();
    control.Call(u"ColumnClear", {});
    TolvaList& list = m_rows.List();
    for (int32_t i = 1; i <= list.RowCount(); ++i) {
        const std::vector<String> row = m_rows.Row(i);
        control.Call(u"AddColumn", { row[0], Variant(), String(DefaultWidth) });
        control.WriteAt(u"ColumnWidth", i, LeadingNumber(row[1]));
        control.WriteAt(u"ColumnAlignment", i, AlignmentOf(row[2]));
    }
}

std::vector<String> ppgColumns::Fields() const
{
    return { m_txtCaption.Text(), m_txtWidth.Text(), m_txtAlignment->Text() };
}

void ppgColumns::Add()
{
    m_rows.InsertRow(0, Fields());
    m_txtWidth.SetText(DefaultWidth);
    m_txtAlignment->SetText(u"Left");
    m_txtCaption->SetFocus();
    MarkChanged();
}

void ppgColumns::Replace()
{
    if (const int32_t row = m_rows.SelectedRow(); row >= 1)
        m_rows.SetRow(row, Fields());
    MarkChanged();
}

void ppgColumns::Open()
{
    const std::vector<String> row = m_rows.Row(m_rows.SelectedRow());
    m_txtCaption.SetText(row[0]);
    m_txtWidth.SetText(row[1]);
    m_txtAlignment->SetText(row[2]);
    m_txtCaption.SelectAllAndFocus();
}

} // namespace tolva
