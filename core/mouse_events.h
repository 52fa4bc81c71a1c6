#pragma once
#include <cstdint>

namespace tolva {

// The mouse events every clickable part of the library raises: Click, DblClick and the three
// mouse events with the surface's arguments, by reference so that a handler may change them, as
// the host's event sink may. A control's events interface is this one, or extends it.
class MouseEvents {
public:
    virtual ~MouseEvents() = default;

    virtual void Click() { }
    virtual void DblClick() { }
    virtual void MouseDown(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseMove(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
    virtual void MouseUp(int16_t& /*button*/, int16_t& /*shift*/, float& /*x*/, float& /*y*/) { }
};

// The events of a control that also takes keys: the mouse events with KeyDown, KeyPress and KeyUp.
class KeyAndMouseEvents : public MouseEvents {
public:
    virtual void KeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
    virtual void KeyPress(int16_t& /*keyAscii*/) { }
    virtual void KeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) { }
};

} // namespace tolva
