#include "tools/render/headless_control.h"
#include "controls/command/tolva_command.h"
#include "controls/input/tolva_input.h"
#include "controls/label/tolva_label.h"
#include "controls/list/tolva_list.h"
#include "controls/scroll/tolva_scroll.h"
#include "controls/tabs/tolva_tabs.h"
#include "host/form/form_object.h"

namespace tolva::render {

namespace {

template <class Control> class HeadlessControlOf final : public HeadlessControl {
public:
    HeadlessControlOf(Surface& surface, ControlSite& site)
        : m_control(surface, site)
    { }
    void ReadProperties(PropertyBag& bag) override { m_control.ReadProperties(bag); }

private:
    Control m_control;
};

template <class Control> std::unique_ptr<HeadlessControl> Create(Surface& surface, ControlSite& site)
{
    return std::make_unique<HeadlessControlOf<Control>>(surface, site);
}

// One line per control class of the library.
constexpr HeadlessControlClass Classes[] = {
    { u"TolvaKit.TolvaCommand", true, &Create<TolvaCommand> },
    { u"TolvaKit.TolvaLabel", false, &Create<TolvaLabel> },
    { u"TolvaKit.TolvaScroll", true, &Create<TolvaScroll> },
    { u"TolvaKit.TolvaInput", true, &Create<TolvaInput> },
    { u"TolvaKit.TolvaTabs", true, &Create<TolvaTabs> },
    { u"TolvaKit.TolvaList", true, &Create<TolvaList> },
};

} // namespace

const HeadlessControlClass* FindHeadlessControlClass(StringView type)
{
    for (const HeadlessControlClass& c : Classes)
        if (SameIdentifier(c.type, type))
            return &c;
    return nullptr;
}

} // namespace tolva::render
