#include "core/parent_menu.h"
#include "core/automation_error.h"
#include <limits>

namespace tolva {

namespace {

int32_t CheckedLong(int64_t value)
{
    if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return int32_t(value);
}

// (a - b) * 15 with each step checked, so an overflow in the difference is caught as well.
int32_t TwipsBetween(int32_t a, int32_t b)
{
    return CheckedLong(int64_t(CheckedLong(int64_t(a) - b)) * 15);
}

} // namespace

PixelPoint OffsetOnParentTwips(const Surface& surface, ParentForm& parent)
{
    const PixelPoint own = surface.ScreenOrigin();
    const PixelPoint form = parent.ScreenOrigin();
    return { TwipsBetween(own.x, form.x), TwipsBetween(own.y, form.y) };
}

void PopupParentMenu(ControlSite& site, const Surface& surface, StringView menuName,
    const std::function<MenuPoint(PixelPoint offset)>& place)
{
    try {
        ParentForm* parent = site.Parent();
        if (!parent)
            return;
        const std::shared_ptr<HostObject> menu = parent->Control(menuName);
        if (!menu)
            return;
        const MenuPoint at = place(OffsetOnParentTwips(surface, *parent));
        parent->PopupMenu(*menu, at.x, at.y);
    } catch (const AutomationError&) {
        // A menu that cannot be shown is not an error the host hears about.
    }
}

} // namespace tolva
