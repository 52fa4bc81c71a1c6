#pragma once
#include "core/control_site.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include <memory>

namespace tolva::render {

// A control of a form on the headless platform, whatever its class.
class HeadlessControl {
public:
    virtual ~HeadlessControl() = default;
    virtual void ReadProperties(PropertyBag& bag) = 0;
};

// A class a form can name ("TolvaKit.TolvaCommand"): how to build it, and whether the form host
// gives it the focus (a label takes none).
struct HeadlessControlClass {
    const char16_t* type;
    bool takesFocus;
    std::unique_ptr<HeadlessControl> (*create)(Surface& surface, ControlSite& site);
};

// The class of that name (ignoring case, as form files do), or nullptr.
const HeadlessControlClass* FindHeadlessControlClass(StringView type);

} // namespace tolva::render
