#pragma once
#include <cstdint>

namespace tolva {

// The events of TolvaLabel, in their dispatch order 1 to 5. Arguments are references: the
// handler may change them, as the host's event sink may.
class TolvaLabelEvents {
public:
    virtual ~TolvaLabelEvents() = default;

    virtual void Click() { }
    virtual void DblClick() { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
};

} // namespace tolva
