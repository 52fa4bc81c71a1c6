#include "tools/render/stage.h"
#include "platform/headless/window_picture.h"

namespace tolva::render {

Stage::Stage(float width, float height)
{
    m_site.extenderName = u"TolvaControl1";
    m_site.extenderWidth = width;
    m_site.extenderHeight = height;
    m_site.parent = &m_form;
    m_surface.Resize(width, height);
}

headless::RasterCanvas Stage::Image() const
{
    return headless::WindowPicture(m_surface);
}

} // namespace tolva::render
