#include "platform/headless/window_tree.h"
#include "platform/headless/headless_surface.h"

namespace tolva::headless {

void WindowTree::SetFocus(HeadlessSurface* surface)
{
    HeadlessSurface* previous = m_focus;
    if (previous == surface)
        return;
    m_focus = surface;
    if (previous && previous->Listener())
        previous->Listener()->OnLostFocus();
    // The LostFocus handler may have moved the focus again or destroyed the new surface.
    if (surface && m_focus == surface && surface->Listener())
        surface->Listener()->OnGotFocus();
}

void WindowTree::Activate(HeadlessSurface* surface, std::optional<PixelPoint> press)
{
    HeadlessSurface* previous = m_active;
    if (previous == surface)
        return;
    m_active = surface;
    if (previous && previous->Listener())
        previous->Listener()->OnDeactivate(press);
}

void WindowTree::Forget(const HeadlessSurface* surface)
{
    if (m_active == surface)
        m_active = nullptr;
    if (m_focus == surface)
        m_focus = nullptr;
    if (m_capture == surface)
        m_capture = nullptr;
}

} // namespace tolva::headless
