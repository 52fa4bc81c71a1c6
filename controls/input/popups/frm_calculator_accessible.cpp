// The calculator as a screen reader reads it: a group of push buttons, one for each key, named
// by the caption the key shows.
#include "controls/input/popups/frm_calculator.h"

namespace tolva {

class frmCalculator::KeyItem final : public AccessibleElement {
public:
    KeyItem(frmCalculator& form, int key)
        : m_form(form)
        , m_key(key)
    { }

    // The backspace key shows a drawn arrow instead of a caption.
    AccessibleDescription Describe() const override
    {
        const KeyImage& image = CalculatorKeys()[size_t(m_key)];
        return { .name = image.caption.empty() ? String(u"Backspace") : String(image.caption),
            .role = AccessibleRole::PushButton,
            .state = m_form.KeyShowsPressed(m_key) ? AccessibleState::Pressed : 0,
            .value = {},
            .shortcut = {},
            .defaultAction = u"Press",
            .location = image.place };
    }

    // As a click on the key: it is queued, animated and sent.
    bool DoDefaultAction() override
    {
        m_form.PressKey(m_key);
        return true;
    }

private:
    frmCalculator& m_form;
    int m_key;
};

AccessibleDescription frmCalculator::Describe() const
{
    return FormDescription(AccessibleRole::Grouping, {});
}

std::unique_ptr<AccessibleElement> frmCalculator::Child(int32_t index)
{
    if (index < 0 || index >= CalculatorKey::Count)
        return nullptr;
    return std::make_unique<KeyItem>(*this, int(index));
}

} // namespace tolva
