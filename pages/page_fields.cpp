#include "pages/page_fields.h"

namespace tolva {

CheckBox::CheckBox(String caption, FieldPlace place, std::function<void()> onClick)
    : m_caption(std::move(caption))
    , m_place(place)
    , m_onClick(std::move(onClick))
{ }

void CheckBox::SetValue(int16_t value)
{
    m_value = value;
    if (m_view)
        m_view->ValueChanged();
}

void CheckBox::Click()
{
    SetValue(m_value == 1 ? 0 : 1);
    m_onClick();
}

OptionGroup::OptionGroup(std::vector<Button> buttons, std::function<void()> onClick)
    : m_buttons(std::move(buttons))
    , m_onClick(std::move(onClick))
{ }

void OptionGroup::SetValue(size_t index)
{
    m_selected = index < m_buttons.size() ? int32_t(index) : -1;
    if (m_view)
        m_view->ValueChanged();
}

void OptionGroup::Click(size_t index)
{
    SetValue(index);
    m_onClick();
}

PageTextBox::PageTextBox(Surface& page, FieldPlace place, std::function<void()> onChange)
    : m_box(page.CreateTextBox())
    , m_onChange(std::move(onChange))
{
    m_box->Move(place.left, place.top, place.width, place.height);
    m_box->SetListener(this);
}

PageTextBox::~PageTextBox()
{
    m_box->SetListener(nullptr);
}

void PageTextBox::SelectAll()
{
    m_box->SetSelStart(0);
    m_box->SetSelLength(int32_t(m_box->Text().size()));
}

void PageTextBox::SelectAllAndFocus()
{
    SelectAll();
    m_box->SetFocus();
}

void PageTextBox::OnChange()
{
    m_onChange();
}

void PageTextBox::OnGotFocus()
{
    if (m_selectsAllOnFocus)
        SelectAll();
}

} // namespace tolva
