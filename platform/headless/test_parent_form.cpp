#include "platform/headless/test_parent_form.h"
#include "core/automation_error.h"
#include <algorithm>

namespace tolva::headless {

namespace {

constexpr int ObjectDoesNotSupport = 438;

bool SameName(StringView a, StringView b)
{
    const auto upper = [](char16_t c) { return c >= u'a' && c <= u'z' ? char16_t(c - 32) : c; };
    return a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(), [&](char16_t x, char16_t y) { return upper(x) == upper(y); });
}

} // namespace

std::shared_ptr<TestMenu> TestParentForm::AddMenu(StringView name)
{
    auto menu = std::make_shared<TestMenu>(String(name));
    m_menus.push_back(menu);
    return menu;
}

std::shared_ptr<HostObject> TestParentForm::Control(StringView name)
{
    if (lacksControls)
        throw AutomationError::RunTime(ObjectDoesNotSupport);
    auto found = std::find_if(
        m_menus.begin(), m_menus.end(), [name](const auto& menu) { return SameName(menu->Name(), name); });
    return found != m_menus.end() ? *found : nullptr;
}

PixelPoint TestParentForm::ScreenOrigin()
{
    if (lacksHwnd)
        throw AutomationError::RunTime(ObjectDoesNotSupport);
    return screenOrigin;
}

void TestParentForm::PopupMenu(HostObject& menu, double x, double y)
{
    if (lacksPopupMenu)
        throw AutomationError::RunTime(ObjectDoesNotSupport);
    const auto* testMenu = dynamic_cast<const TestMenu*>(&menu);
    popupMenus.push_back({ testMenu ? testMenu->Name() : String(), x, y });
}

} // namespace tolva::headless
