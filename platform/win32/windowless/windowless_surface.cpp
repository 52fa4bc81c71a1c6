#include "platform/win32/windowless/windowless_surface.h"
#include "platform/win32/windowless/null_canvas.h"
#include "core/text_box_model.h"
#include "platform/win32/windowless/thread_timer.h"

namespace tolva::win32 {

std::unique_ptr<Canvas> WindowlessSurface::CreateCanvas(int32_t width, int32_t height)
{
    return std::make_unique<NullCanvas>(width, height);
}

std::unique_ptr<Surface> WindowlessSurface::CreateChild()
{
    return std::make_unique<WindowlessSurface>(m_owner);
}

std::unique_ptr<TextBox> WindowlessSurface::CreateTextBox()
{
    return std::make_unique<TextBoxModel>();
}

PixelPoint WindowlessSurface::ScreenSize() const
{
    return { GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) };
}

std::unique_ptr<Timer> WindowlessSurface::CreateTimer()
{
    return std::make_unique<ThreadTimer>(m_owner);
}

} // namespace tolva::win32
