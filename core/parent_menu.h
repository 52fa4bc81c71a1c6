#pragma once
#include "core/control_site.h"
#include "core/string.h"
#include "core/surface.h"
#include <cstdint>
#include <functional>

namespace tolva {

// A point in the parent form's scale where a pop-up menu opens.
struct MenuPoint {
    double x = 0;
    double y = 0;
};

// The control's window origin relative to its parent form's, in twips: the difference of the
// two screen origins times 15, in 32-bit arithmetic as the form's Long values are. A result
// past 32 bits throws the Overflow run-time error.
PixelPoint OffsetOnParentTwips(const Surface& surface, ParentForm& parent);

// Pops up the parent form's menu control named menuName at place(offset), where offset is
// OffsetOnParentTwips. Every failure on the way (no form, no such control, a form member that
// throws, an overflow) is swallowed: no menu opens and the caller carries on.
void PopupParentMenu(ControlSite& site, const Surface& surface, StringView menuName,
    const std::function<MenuPoint(PixelPoint offset)>& place);

} // namespace tolva
