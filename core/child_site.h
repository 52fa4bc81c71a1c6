#pragma once
#include "core/control_site.h"
#include "core/surface.h"

namespace tolva {

// The site a control gives the controls it embeds on its own surface. The embedding control is
// their designer, so their PropertyChanged calls go nowhere; ambients and the modal services are
// the embedding control's own, and so is formatting; the extender is the child window itself.
// Their parent is the embedding control, not a form: it has no menus to pop up, so an embedded
// control's click never reaches the host's form.
class ChildSite final : public ControlSite {
public:
    ChildSite(ControlSite& container, const Surface& child, String name);

    void PropertyChanged(StringView key) override;

    Font AmbientFont() override;
    bool UserMode() override;
    bool DisplayAsDefault() override; // an embedded part is never the form's default button

    String ExtenderName() override;
    float ExtenderWidth() override;
    float ExtenderHeight() override;
    ParentForm* Parent() override;

    int MessageBox(StringView prompt, int style) override;
    void Beep() override;
    void ShowAboutBox() override;
    Formatter& Formatting() override;
    InputPopups& Popups() override;
    // The part lives as long as its container: holding the container holds it.
    std::shared_ptr<void> Hold() override { return m_container.Hold(); }

private:
    ControlSite& m_container;
    const Surface& m_child;
    String m_name;
};

} // namespace tolva
