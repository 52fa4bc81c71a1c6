#include "platform/headless/headless_surface.h"
#include "platform/headless/headless_text_box.h"
#include "platform/headless/virtual_timer.h"
#include <algorithm>
#include <cmath>

namespace tolva::headless {

namespace {

int32_t Pixels(float twips)
{
    return int32_t(std::lround(twips / SurfaceProperties::TwipsPerPixel));
}

} // namespace

HeadlessSurface::HeadlessSurface(WindowTree& tree, HeadlessSurface* parent)
    : m_tree(tree)
    , m_parent(parent)
{
    if (m_parent)
        m_parent->m_children.push_back(this);
}

HeadlessSurface::~HeadlessSurface()
{
    m_tree.Forget(this);
    if (m_parent)
        std::erase(m_parent->m_children, this);
    for (HeadlessSurface* child : m_children)
        child->m_parent = nullptr;
}

void HeadlessSurface::ResizeWindowImage()
{
    RasterCanvas window(Pixels(ScaleWidth()), Pixels(ScaleHeight()));
    window.FillRect(0, 0, window.Width(), window.Height(), TranslateColor(window, BackColor()));
    m_window = std::move(window);
}

void HeadlessSurface::Move(float left, float top, float width, float height)
{
    const float oldWidth = Width(), oldHeight = Height();
    SurfaceProperties::Move(left, top, width, height);
    if (Width() == oldWidth && Height() == oldHeight)
        return;
    ResizeWindowImage();
    if (m_listener)
        m_listener->OnResize();
}

void HeadlessSurface::SetBorderStyle(int16_t style)
{
    SurfaceProperties::SetBorderStyle(style);
    ResizeWindowImage();
}

void HeadlessSurface::SetAppearance(int16_t appearance)
{
    SurfaceProperties::SetAppearance(appearance);
    ResizeWindowImage();
}

void HeadlessSurface::SetVisible(bool visible)
{
    SurfaceProperties::SetVisible(visible);
    if (!m_popupWindow)
        return;
    if (visible)
        m_tree.Activate(this);
    else if (m_tree.Active() == this)
        m_tree.Activate(nullptr);
}

PixelPoint HeadlessSurface::ScreenOrigin() const
{
    if (m_popupWindow)
        return { Pixels(Left()) + BorderPixels(), Pixels(Top()) + BorderPixels() };
    if (!m_parent)
        return m_screenOrigin;
    const PixelPoint parentOrigin = m_parent->ScreenOrigin();
    return { parentOrigin.x + Pixels(Left()) + BorderPixels(), parentOrigin.y + Pixels(Top()) + BorderPixels() };
}

void HeadlessSurface::Refresh()
{
    ++m_refreshes;
    Paint();
}

std::unique_ptr<Canvas> HeadlessSurface::CreateCanvas(int32_t width, int32_t height)
{
    return std::make_unique<RasterCanvas>(width, height);
}

void HeadlessSurface::Present(const Canvas& image, int32_t x, int32_t y, int32_t width, int32_t height)
{
    ++m_presents;
    // Every canvas of this platform is a raster canvas: CreateCanvas makes nothing else.
    m_window.CopyFrom(dynamic_cast<const RasterCanvas&>(image), x, y, width, height);
}

std::unique_ptr<Surface> HeadlessSurface::CreateChild()
{
    return std::make_unique<HeadlessSurface>(m_tree, this);
}

std::unique_ptr<TextBox> HeadlessSurface::CreateTextBox()
{
    return std::make_unique<HeadlessTextBox>(*this);
}

std::unique_ptr<Timer> HeadlessSurface::CreateTimer()
{
    return std::make_unique<VirtualTimer>(m_tree.Clock());
}

bool HeadlessSurface::AcceptsInput() const
{
    for (const HeadlessSurface* surface = this; surface; surface = surface->m_parent) {
        if (!surface->Enabled())
            return false;
    }
    return true;
}

void HeadlessSurface::MouseDown(int16_t button, int16_t shift, float x, float y)
{
    if (m_listener && AcceptsInput())
        m_listener->OnMouseDown(button, shift, x, y);
}

void HeadlessSurface::MouseMove(int16_t button, int16_t shift, float x, float y)
{
    if (m_listener && AcceptsInput())
        m_listener->OnMouseMove(button, shift, x, y);
}

void HeadlessSurface::MouseUp(int16_t button, int16_t shift, float x, float y)
{
    if (m_listener && AcceptsInput())
        m_listener->OnMouseUp(button, shift, x, y);
}

void HeadlessSurface::Click()
{
    if (m_listener && AcceptsInput())
        m_listener->OnClick();
}

void HeadlessSurface::DblClick()
{
    if (m_listener && AcceptsInput())
        m_listener->OnDblClick();
}

int16_t HeadlessSurface::KeyDown(int16_t keyCode, int16_t shift)
{
    if (m_listener && AcceptsInput())
        m_listener->OnKeyDown(keyCode, shift);
    return keyCode;
}

int16_t HeadlessSurface::KeyPress(int16_t keyAscii)
{
    if (m_listener && AcceptsInput())
        m_listener->OnKeyPress(keyAscii);
    return keyAscii;
}

int16_t HeadlessSurface::KeyUp(int16_t keyCode, int16_t shift)
{
    if (m_listener && AcceptsInput())
        m_listener->OnKeyUp(keyCode, shift);
    return keyCode;
}

bool HeadlessSurface::AccessKey(char16_t key)
{
    const String keys = AccessKeys();
    const bool listed
        = std::any_of(keys.begin(), keys.end(), [key](char16_t k) { return UpperCase(k) == UpperCase(key); });
    if (!listed || !AcceptsInput())
        return false;
    if (m_listener)
        m_listener->OnAccessKeyPress(key);
    return true;
}

void HeadlessSurface::SetFocus()
{
    if (AcceptsInput())
        m_tree.SetFocus(this);
}

void HeadlessSurface::Resize(float width, float height)
{
    SurfaceProperties::Move(Left(), Top(), width, height);
    ResizeWindowImage();
    if (m_listener)
        m_listener->OnResize();
}

void HeadlessSurface::Paint()
{
    if (m_listener)
        m_listener->OnPaint();
}

void HeadlessSurface::AmbientChanged(StringView name)
{
    if (m_listener)
        m_listener->OnAmbientChanged(name);
}

void HeadlessSurface::Show()
{
    if (m_listener)
        m_listener->OnShow();
}

void HeadlessSurface::Hide()
{
    if (m_listener)
        m_listener->OnHide();
}

} // namespace tolva::headless
