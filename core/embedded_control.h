#pragma once
#include "core/child_site.h"
#include "core/control_site.h"
#include "core/surface.h"
#include <memory>

namespace tolva {

// A control embedded in another one: its own child window of the container's surface, the site
// the container gives it, and the control itself, built and torn down in that order. The
// container places the child window (it is the child's extender) and otherwise talks to the
// control only through its public members and its event listener.
template <class Control> class EmbeddedControl {
public:
    EmbeddedControl(Surface& container, ControlSite& containerSite, String name)
        : m_window(container.CreateChild())
        , m_site(containerSite, *m_window, std::move(name))
        , m_control(*m_window, m_site)
    { }

    Control& operator*() { return m_control; }
    const Control& operator*() const { return m_control; }
    Control* operator->() { return &m_control; }
    const Control* operator->() const { return &m_control; }

    Surface& Window() { return *m_window; }
    const Surface& Window() const { return *m_window; }

private:
    std::unique_ptr<Surface> m_window;
    ChildSite m_site;
    Control m_control;
};

} // namespace tolva
