#pragma once
#include <cstdint>

namespace tolva {

// The events of ctlScrollBox, raised unchanged from its surface's own, coordinates in the box's
// own scale. Arguments are references, as for every event of the library.
class ctlScrollBoxEvents {
public:
    virtual ~ctlScrollBoxEvents() = default;

    virtual void Click() { }
    virtual void DblClick() { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
};

} // namespace tolva
