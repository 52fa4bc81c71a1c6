#pragma once
#include "platform/headless/headless_surface.h"
#include "platform/headless/test_parent_form.h"
#include "platform/headless/test_site.h"

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
    const headless::RasterCanvas& Image() const { return m_surface.WindowImage(); }

private:
    headless::WindowTree m_tree;
    headless::HeadlessSurface m_surface { m_tree };
    headless::TestParentForm m_form;
    headless::TestSite m_site;
};

} // namespace tolva::render
