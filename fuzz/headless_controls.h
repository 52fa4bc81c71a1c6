#pragma once
#include "core/property_bag.h"
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_site.h"
#include <memory>
#include <span>

namespace tolva::fuzz {

// A control of the library on a headless surface of its own, whatever its class.
class HeadlessControl {
public:
    virtual ~HeadlessControl() = default;

    virtual void ReadProperties(PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) = 0;

    // Sizes the control and paints it, as a container shows a loaded control.
    void Show(float width, float height)
    {
        m_surface.Resize(width, height);
        m_surface.Show();
        m_surface.Paint();
    }

protected:
    headless::WindowTree m_tree;
    headless::HeadlessSurface m_surface { m_tree };
    headless::TestSite m_site;
};

using HeadlessControlFactory = std::unique_ptr<HeadlessControl> (*)();

// Every public control of the library; a new control joins the fuzzers with one line in
// headless_controls.cpp.
std::span<const HeadlessControlFactory> HeadlessControls();

} // namespace tolva::fuzz
