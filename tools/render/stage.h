#pragma once
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_parent_form.h"
#include "platform/headless/test_site.h"
#include <memory>

namespace tolva::render {

// Where a scene puts its control: a surface on a test form with a container that answers like a
// form at run time. After the scene has run, the surface shows what the control last painted.
class Stage {
public:
    // A control of width x height twips, called "TolvaControl1" by its extender.
    Stage(float width, float height);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    headless::HeadlessSurface& Surface() { return m_surface; }
    headless::TestSite& Site() { return m_site; }
    headless::TestParentForm& Form() { return m_form; }
    headless::WindowTree& Tree() { return m_tree; }
    // Keeps a control alive until its picture is taken: one with parts (child windows) would
    // take them along when it goes.
    void Keep(std::shared_ptr<void> control) { m_kept = std::move(control); }

    // The control as a form shows it: its border, its client area and the windows of its parts.
    headless::RasterCanvas Image() const;

private:
    headless::WindowTree m_tree;
    headless::HeadlessSurface m_surface { m_tree };
    headless::TestParentForm m_form;
    headless::TestSite m_site;
    std::shared_ptr<void> m_kept; // goes first, while its windows' tree is still there
};

} // namespace tolva::render
