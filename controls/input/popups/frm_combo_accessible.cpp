// The list pop-up as a screen reader reads it: a list of the owner's items from item 1 on.
#include "controls/input/popups/frm_combo.h"

namespace tolva {

// Item number (one-based, as the owner counts it) index + 1, where the list shows it.
class frmCombo::Item final : public AccessibleElement {
public:
    Item(frmCombo& form, int32_t number)
        : m_form(form)
        , m_number(number)
    { }

    bool Exists() const override { return m_number < m_form.ListCount(); }

    AccessibleDescription Describe() const override
    {
        uint32_t state = SelectableItemState(m_form.Window(), m_form.m_listIndex == m_number);
        if (m_form.FocusedChild() == m_number - 1)
            state |= AccessibleState::Focused;
        if (!m_form.ItemShown(m_number))
            state |= AccessibleState::Offscreen;
        return { .name = m_form.m_items->List(m_number),
            .role = AccessibleRole::ListItem,
            .state = state,
            .value = {},
            .shortcut = {},
            .defaultAction = {},
            .location = m_form.ItemRect(m_number, m_form.ItemHeight()) };
    }
    bool DoDefaultAction() override { return false; }

    // As the arrow keys do: the owner hears "SELECT" and shows the item; the list stays open.
    bool Select() override
    {
        m_form.SetListIndex(m_number);
        return true;
    }

private:
    frmCombo& m_form;
    int32_t m_number;
};

AccessibleDescription frmCombo::Describe() const
{
    const int32_t selected = SelectedChild();
    return FormDescription(AccessibleRole::List, selected == None ? String() : m_items->List(selected + 1));
}

int32_t frmCombo::ChildCount() const
{
    return std::max(ListCount() - 1, 0);
}

std::unique_ptr<AccessibleElement> frmCombo::Child(int32_t index)
{
    if (index < 0 || index >= ChildCount())
        return nullptr;
    return std::make_unique<Item>(*this, index + 1);
}

int32_t frmCombo::SelectedChild() const
{
    return m_listIndex >= 1 && m_listIndex < ListCount() ? m_listIndex - 1 : None;
}

// The list takes the keys while it shows, so its highlight has the focus.
int32_t frmCombo::FocusedChild() const
{
    return Visible() ? SelectedChild() : None;
}

} // namespace tolva
