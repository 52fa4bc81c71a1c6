#pragma once
#include "core/popup_window_factory.h"
#include "platform/headless/headless_surface.h"

namespace tolva::headless {

// Pop-up windows in a window tree: top-level headless surfaces that activate when shown.
class HeadlessPopupWindows final : public PopupWindowFactory {
public:
    explicit HeadlessPopupWindows(WindowTree& tree)
        : m_tree(tree)
    { }

    std::unique_ptr<Surface> CreatePopupWindow() override
    {
        auto window = std::make_unique<HeadlessSurface>(m_tree);
        window->MakePopupWindow();
        return window;
    }

private:
    WindowTree& m_tree;
};

} // namespace tolva::headless
