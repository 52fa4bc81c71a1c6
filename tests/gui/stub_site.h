#pragma once
#include "core/control_site.h"
#include "platform/win32/com/ole_formatter.h"
#include "platform/win32/window/thread_popups.h"
#include "platform/win32/windows_api.h"
#include <memory>
#include <vector>

namespace tolva::win32::test {

// A named object of the form (a menu) as the parent form hands it out.
struct StubMenu final : HostObject {
    explicit StubMenu(String menuName)
        : name(std::move(menuName))
    { }
    String name;
};

// A parent form that records the menus popped up; its origin is a real window's.
class StubParentForm final : public ParentForm {
public:
    struct Popup {
        String menu;
        double x = 0;
        double y = 0;
    };

    std::shared_ptr<HostObject> Control(StringView name) override;
    PixelPoint ScreenOrigin() override;
    void PopupMenu(HostObject& menu, double x, double y) override;

    HWND window = nullptr;
    std::vector<String> menus;
    std::vector<Popup> popups;
};

// A container without designer: answers from its members, records what a control asks of it.
class StubSite final : public ControlSite {
public:
    void PropertyChanged(StringView key) override { changes.emplace_back(key); }
    Font AmbientFont() override { return {}; }
    bool UserMode() override { return true; }
    bool DisplayAsDefault() override { return displayAsDefault; }
    String ExtenderName() override { return extenderName; }
    float ExtenderWidth() override { return extenderWidth; }
    float ExtenderHeight() override { return extenderHeight; }
    ParentForm* Parent() override { return parent; }
    int MessageBox(StringView, int) override { return 1; }
    void Beep() override { }
    void ShowAboutBox() override { }
    Formatter& Formatting() override { return formatter; }
    InputPopups& Popups() override { return popups.Get(); }

    bool displayAsDefault = false;
    String extenderName = u"Command1";
    float extenderWidth = 0;
    float extenderHeight = 0;
    StubParentForm* parent = nullptr;
    std::vector<String> changes;
    OleFormatter formatter;
    ThreadPopups popups;
};

} // namespace tolva::win32::test
