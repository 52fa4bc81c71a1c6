#include "platform/win32/com/control_object.h"
#include "platform/win32/window/window_surface.h"

namespace tolva::win32 {

std::unique_ptr<Surface> CreateControlSurface(IUnknown& owner)
{
    return std::make_unique<WindowSurface>(&owner);
}

} // namespace tolva::win32
