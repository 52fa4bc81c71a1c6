#pragma once
#include "core/accessibility.h"
#include "platform/headless/headless_surface.h"
#include <ostream>
#include <vector>

namespace tolva {

inline void PrintTo(const AccessibleDescription& d, std::ostream* out)
{
    *out << '"' << ToUtf8(d.name) << "\" role " << int(d.role) << " state " << d.state << " value \"" << ToUtf8(d.value)
         << "\" " << ToUtf8(d.shortcut) << " " << ToUtf8(d.defaultAction) << " at " << d.location.left << ","
         << d.location.top << "-" << d.location.right << "," << d.location.bottom;
}

namespace headless {
inline void PrintTo(const HeadlessSurface::Announcement& a, std::ostream* out)
{
    *out << "event " << int(a.event) << " item " << a.item;
}
} // namespace headless

using Heard = std::vector<headless::HeadlessSurface::Announcement>;

} // namespace tolva
