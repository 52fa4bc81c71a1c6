#include "tests/gui/stub_site.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32::test {

std::shared_ptr<HostObject> StubParentForm::Control(StringView name)
{
    for (const String& menu : menus)
        if (menu == name)
            return std::make_shared<StubMenu>(menu);
    return nullptr;
}

PixelPoint StubParentForm::ScreenOrigin()
{
    POINT origin { 0, 0 };
    ClientToScreen(window, &origin);
    return { origin.x, origin.y };
}

void StubParentForm::PopupMenu(HostObject& menu, double x, double y)
{
    popups.push_back({ static_cast<StubMenu&>(menu).name, x, y });
}

} // namespace tolva::win32::test
