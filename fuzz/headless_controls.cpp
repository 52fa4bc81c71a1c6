#include "fuzz/headless_controls.h"
#include "controls/command/tolva_command.h"
#include "controls/input/tolva_input.h"
#include "controls/label/tolva_label.h"
#include "controls/list/tolva_list.h"
#include "controls/scroll/tolva_scroll.h"
#include "controls/tabs/tolva_tabs.h"

namespace tolva::fuzz {

namespace {

template <class Control> class HeadlessControlOf final : public HeadlessControl {
public:
    HeadlessControlOf() { m_control.InitProperties(); }

    void ReadProperties(PropertyBag& bag) override { m_control.ReadProperties(bag); }
    void WriteProperties(PropertyBag& bag) override { m_control.WriteProperties(bag); }

private:
    Control m_control { m_surface, m_site };
};

template <class Control> std::unique_ptr<HeadlessControl> Create()
{
    return std::make_unique<HeadlessControlOf<Control>>();
}

constexpr HeadlessControlFactory Controls[] = {
    &Create<TolvaCommand>,
    &Create<TolvaInput>,
    &Create<TolvaLabel>,
    &Create<TolvaList>,
    &Create<TolvaScroll>,
    &Create<TolvaTabs>,
};

} // namespace

std::span<const HeadlessControlFactory> HeadlessControls()
{
    return Controls;
}

} // namespace tolva::fuzz
