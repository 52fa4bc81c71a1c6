#include "core/accessibility.h"
#include "core/caption.h"

namespace tolva {

String AccessibleName(StringView caption, ControlSite& site)
{
    String name = ScanCaption(caption).text;
    return name.empty() ? site.ExtenderName() : name;
}

String AccessKeyShortcut(StringView caption)
{
    const ScannedCaption scanned = ScanCaption(caption);
    if (!scanned.HasAccessKey())
        return {};
    return String(u"Alt+") + UpperCase(scanned.AccessCharacter());
}

uint32_t AccessibleStateOf(const Surface& surface, const MouseState& mouse, bool focusable)
{
    uint32_t state = 0;
    if (focusable)
        state |= AccessibleState::Focusable;
    if (surface.HasFocus())
        state |= AccessibleState::Focused;
    if (mouse.hot)
        state |= AccessibleState::Hot;
    if (mouse.pushed)
        state |= AccessibleState::Pressed;
    if (!surface.Enabled())
        state |= AccessibleState::Unavailable;
    return state;
}

} // namespace tolva
