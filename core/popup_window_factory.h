#pragma once
#include "core/surface.h"
#include <memory>

namespace tolva {

// The platform's top-level pop-up windows, on which the pop-up forms are built. A new one is
// hidden and borderless; Move places it on the screen (twips); showing it makes it the active
// window, so that it gets the keyboard, and its listener hears OnDeactivate when another window
// becomes active.
class PopupWindowFactory {
public:
    virtual std::unique_ptr<Surface> CreatePopupWindow() = 0;

protected:
    ~PopupWindowFactory() = default;
};

} // namespace tolva
