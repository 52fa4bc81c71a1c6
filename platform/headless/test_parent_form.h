#pragma once
#include "core/control_site.h"
#include "platform/headless/test_menu.h"
#include <vector>

namespace tolva::headless {

// A parent form for tests: named menus, a window origin, and a record of the menus popped up.
// The switches make a member fail as on a form that lacks it (error 438).
class TestParentForm final : public ParentForm {
public:
    struct PopupMenuCall {
        String menu;
        double x = 0;
        double y = 0;
        bool operator==(const PopupMenuCall&) const = default;
    };

    std::shared_ptr<TestMenu> AddMenu(StringView name);

    // Controls(name) looks names up ignoring case, as the form's collection does.
    std::shared_ptr<HostObject> Control(StringView name) override;
    PixelPoint ScreenOrigin() override;
    void PopupMenu(HostObject& menu, double x, double y) override;

    PixelPoint screenOrigin;
    bool lacksControls = false;
    bool lacksHwnd = false;
    bool lacksPopupMenu = false;
    std::vector<PopupMenuCall> popupMenus;

private:
    std::vector<std::shared_ptr<TestMenu>> m_menus;
};

} // namespace tolva::headless
