#pragma once
#include "host/form/form_object.h"
#include "host/form/form_values.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_parent_form.h"
#include "platform/headless/test_site.h"
#include "tools/render/headless_control.h"
#include <memory>
#include <vector>

namespace tolva::render {

// A form of the form host's file format built on the headless platform as TolvaHost builds it
// on Windows: a window of the form's client size and back colour; each visible control on a
// child window at its extender's place, with the form's font as ambient font, its name, size and
// default-button flag from the extender, loaded from its properties; then the first control in
// tab order that takes the focus gets it. Menus are left out (they live outside the client
// area). A form the host would refuse, or one naming a class the headless platform lacks, throws
// FormSyntaxError.
class FormStage {
public:
    explicit FormStage(const FormObject& form);
    FormStage(const FormStage&) = delete;
    FormStage& operator=(const FormStage&) = delete;

    // The form's client area with its controls.
    headless::RasterCanvas Picture() const;

private:
    struct Placed {
        const HeadlessControlClass* controlClass = nullptr;
        ExtenderValues extender;
        headless::TestSite site;
        std::unique_ptr<Surface> surface;
        std::unique_ptr<HeadlessControl> control;
    };

    static ExtenderValues Validated(const FormObject& control);
    void Place(const FormObject& control, const FormValues& form);
    void FocusFirstInTabOrder();

    headless::WindowTree m_tree;
    headless::HeadlessSurface m_window { m_tree };
    headless::TestParentForm m_parent;
    std::vector<std::unique_ptr<Placed>> m_controls; // go before the window they are in
};

} // namespace tolva::render
