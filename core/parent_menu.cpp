#include "core/parent_menu.h"
#include "core/automation_error.h"
#include "core/long_arithmetic.h"

namespace tolva {

namespace {

// (a - b) * 15 with each step checked as the form language checks its Long arithmetic.
int32_t TwipsBetween(int32_t a, int32_t b)
{
    int32_t twips = 0;
    if (__builtin_mul_overflow(CheckedSubtract(a, b), 15, &twips))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return twips;
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
