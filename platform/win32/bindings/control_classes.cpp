#include "platform/win32/com/control_class.h"
#include <array>

namespace tolva::win32 {

// One binding file per control defines its class.
extern const ControlClass TolvaCommandClass;
extern const ControlClass TolvaLabelClass;
extern const ControlClass TolvaScrollClass;
extern const ControlClass TolvaTabsClass;
extern const ControlClass TolvaInputClass;
extern const ControlClass TolvaListClass;

namespace {
const std::array<const ControlClass*, 6> Classes = {
    &TolvaCommandClass, &TolvaLabelClass, &TolvaScrollClass, &TolvaTabsClass, &TolvaInputClass, &TolvaListClass
};
}

std::span<const ControlClass* const> ControlClasses()
{
    return Classes;
}

const ControlClass* FindControlClass(REFCLSID clsid)
{
    for (const ControlClass* c : Classes)
        if (*c->clsid == clsid)
            return c;
    return nullptr;
}

} // namespace tolva::win32
