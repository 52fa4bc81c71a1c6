// The text entry as a screen reader reads it.
#include "controls/input/tolva_input.h"

namespace tolva {

namespace {
constexpr int16_t LeftButton = 1;
}

// The text box inside holds the focus whenever the control has it.
AccessibleDescription TolvaInput::Describe() const
{
    const bool open = DropDownOpen();
    uint32_t state = AccessibleStateOf(m_surface, m_mouse, true);
    if (m_txtInput->HasFocus())
        state |= AccessibleState::Focused;
    if (Locked())
        state |= AccessibleState::ReadOnly;
    if (HasDropDown())
        state |= DropDownState(open);
    return { .name = m_site.ExtenderName(),
        .role = AccessibleRole::EditableText,
        .state = state,
        .value = Text(),
        .shortcut = {},
        .defaultAction = !HasDropDown() ? u"" : open ? u"Close" : u"Open",
        .location = {} };
}

// A click on the drop-down button: it opens the pop-up, or closes the open one.
bool TolvaInput::DoDefaultAction()
{
    if (!HasDropDown() || !m_surface.Enabled())
        return false;
    const float x = m_surface.ScaleWidth() - 15;
    OnMouseDown(LeftButton, 0, x, 0);
    OnMouseUp(LeftButton, 0, x, 0);
    return true;
}

} // namespace tolva
