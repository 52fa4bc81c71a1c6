// The calendar as a screen reader reads it: a table of the 42 days of the grid, named by their
// long dates, the chosen one selected and the value. The month caption and the arrows are labels
// with windows of their own.
#include "controls/input/popups/frm_calendar.h"

namespace tolva {

namespace {
constexpr StringView DateFormat = u"Long Date";
}

// Day index of the grid (0 = the Sunday on or before the 1st).
class frmCalendar::DayItem final : public AccessibleElement {
public:
    DayItem(frmCalendar& form, int index)
        : m_form(form)
        , m_index(index)
    { }

    AccessibleDescription Describe() const override
    {
        const Cell& cell = *m_form.m_lblDay[size_t(m_index)];
        const Surface& day = cell.label.Window();
        uint32_t state = SelectableItemState(m_form.Window(), m_index == m_form.SelectedChild());
        if (!m_form.DayViewShown())
            state |= AccessibleState::Offscreen;
        return { .name = m_form.Formatted(cell.date, DateFormat),
            .role = AccessibleRole::Cell,
            .state = state,
            .value = {},
            .shortcut = {},
            .defaultAction = u"Choose",
            .location = PixelRectOf(m_form.Window(), day.Left(), day.Top(), day.Width(), day.Height()) };
    }

    // A press and a release on the day: it is chosen and handed to the owner.
    bool DoDefaultAction() override
    {
        m_form.PressDay(m_index);
        m_form.Callback(u"");
        return true;
    }
    bool Select() override
    {
        m_form.PressDay(m_index);
        return true;
    }

private:
    frmCalendar& m_form;
    int m_index;
};

AccessibleDescription frmCalendar::Describe() const
{
    return FormDescription(AccessibleRole::Table, Formatted(m_dtDate, DateFormat));
}

std::unique_ptr<AccessibleElement> frmCalendar::Child(int32_t index)
{
    if (index < 0 || index >= Cells)
        return nullptr;
    return std::make_unique<DayItem>(*this, index);
}

// The cell of the chosen date, wherever the grid shows it; days compare without their time.
int32_t frmCalendar::SelectedChild() const
{
    for (int i = 0; i < Cells; ++i)
        if (int64_t(m_lblDay[size_t(i)]->date.Serial()) == int64_t(m_dtDate.Serial()))
            return i;
    return None;
}

} // namespace tolva
