#pragma once
#include "core/control_site.h"
#include "core/mouse_state.h"
#include "core/string.h"
#include "core/surface.h"
#include <cstdint>

namespace tolva {

// What a control is to a screen reader.
enum class AccessibleRole { PushButton, Link, StaticText, ScrollBar };

namespace AccessibleState {
enum : uint32_t {
    Focused = 1 << 0,
    Focusable = 1 << 1,
    Hot = 1 << 2,
    Pressed = 1 << 3,
    Unavailable = 1 << 4,
};
}

// A control as a screen reader reads it: its name, role and state, its value, the keyboard
// shortcut ("Alt+C") and the name of its default action (empty when it has none).
struct AccessibleDescription {
    String name;
    AccessibleRole role = AccessibleRole::StaticText;
    uint32_t state = 0;
    String value;
    String shortcut;
    String defaultAction;
    bool operator==(const AccessibleDescription&) const = default;
};

// Answered by every control; the platform turns it into its accessibility interface.
class AccessibleControl {
public:
    virtual AccessibleDescription Describe() const = 0;
    // Does what Describe names as the default action; false when there is none to do now.
    virtual bool DoDefaultAction() = 0;

protected:
    ~AccessibleControl() = default;
};

// The name of a control with a caption: the caption without its access-key marks, or the
// extender's name when that leaves nothing.
String AccessibleName(StringView caption, ControlSite& site);
// "Alt+" and the caption's access character in upper case; empty without one.
String AccessKeyShortcut(StringView caption);
// Focused, unavailable, and hot and pressed from the mouse; focusable when the control takes
// the focus.
uint32_t AccessibleStateOf(const Surface& surface, const MouseState& mouse, bool focusable);

} // namespace tolva
