#include "core/accessibility.h"
#include "core/caption.h"
#include <cmath>

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

void AnnounceSelection(Surface& surface, const AccessibleElement& element)
{
    if (const int32_t item = element.FocusedChild(); item != AccessibleElement::None)
        surface.Announce(AccessibleEvent::Focus, item);
    if (const int32_t item = element.SelectedChild(); item != AccessibleElement::None)
        surface.Announce(AccessibleEvent::Selection, item);
}

uint32_t SelectableItemState(const Surface& surface, bool selected)
{
    uint32_t state = AccessibleState::Selectable;
    if (selected)
        state |= AccessibleState::Selected;
    if (!surface.Enabled())
        state |= AccessibleState::Unavailable;
    return state;
}

uint32_t DropDownState(bool open)
{
    return open ? AccessibleState::Expanded : AccessibleState::Collapsed;
}

Rect PixelRectOf(const Surface& surface, double left, double top, double width, double height)
{
    const double x = surface.TwipsPerPixelX(), y = surface.TwipsPerPixelY();
    const auto pixels = [](double twips, double perPixel) { return int32_t(std::lround(twips / perPixel)); };
    return { pixels(left, x), pixels(top, y), pixels(left + width, x), pixels(top + height, y) };
}

} // namespace tolva
