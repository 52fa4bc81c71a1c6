#include "platform/win32/window/thread_popups.h"

namespace tolva::win32 {

// The library has no pop-up windows of its own yet: a drop-down button opens nothing.
InputPopups& ThreadPopups()
{
    static thread_local NoPopups factory;
    static thread_local InputPopups popups(factory);
    return popups;
}

} // namespace tolva::win32
