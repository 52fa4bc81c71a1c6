#pragma once
#include "core/control_site.h"
#include "core/input_popup.h"
#include "core/popup_window_factory.h"

namespace tolva {

// Makes the library's pop-up forms (frmCalendar, frmCalculator, frmCombo) on the platform's
// pop-up windows. site is what the forms and the controls on them use as their container: the
// thread's pop-up set (a form unloads itself through it), formatting, fonts and beeps.
class PopupForms final : public PopupFactory {
public:
    PopupForms(PopupWindowFactory& windows, ControlSite& site)
        : m_windows(windows)
        , m_site(site)
    { }

    std::unique_ptr<InputPopup> Create(PopupKind kind) override;

private:
    PopupWindowFactory& m_windows;
    ControlSite& m_site;
};

} // namespace tolva
