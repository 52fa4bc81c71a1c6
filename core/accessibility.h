#pragma once
#include "core/control_site.h"
#include "core/mouse_state.h"
#include "core/rect.h"
#include "core/string.h"
#include "core/surface.h"
#include <cstdint>
#include <memory>

namespace tolva {

// What a control, or an item inside it, is to a screen reader.
enum class AccessibleRole {
    PushButton,
    Link,
    StaticText,
    ScrollBar,
    PageTabList,
    PageTab,
    Grouping,
    EditableText,
    List,
    ListItem,
    Table,
    Row,
    Cell,
};

namespace AccessibleState {
inline constexpr uint32_t Focused = 1u << 0;
inline constexpr uint32_t Focusable = 1u << 1;
inline constexpr uint32_t Hot = 1u << 2;
inline constexpr uint32_t Pressed = 1u << 3;
inline constexpr uint32_t Unavailable = 1u << 4;
inline constexpr uint32_t Selected = 1u << 5;
inline constexpr uint32_t Selectable = 1u << 6;
inline constexpr uint32_t ReadOnly = 1u << 7;
inline constexpr uint32_t Collapsed = 1u << 8;
inline constexpr uint32_t Expanded = 1u << 9;
inline constexpr uint32_t Offscreen = 1u << 10;
}

// A control or an item as a screen reader reads it: its name, role and state, its value, the
// keyboard shortcut ("Alt+C") and the name of its default action (empty when it has none).
// An item also says where it is, in pixels of its control's client area; a control is where its
// window is, which the platform knows.
struct AccessibleDescription {
    String name;
    AccessibleRole role = AccessibleRole::StaticText;
    uint32_t state = 0;
    String value;
    String shortcut;
    String defaultAction;
    Rect location;
    bool operator==(const AccessibleDescription&) const = default;
};

// Something a screen reader reads: a control, or an item inside one (a tab, a row, a cell).
// Items are made when asked for, one at a time, so that a list of a million rows never holds a
// million of them; an item made earlier may outlive its row, and then no longer exists.
class AccessibleElement {
public:
    static constexpr int32_t None = -1;

    virtual ~AccessibleElement() = default;

    virtual AccessibleDescription Describe() const = 0;
    // Does what Describe names as the default action; false when there is none to do now.
    virtual bool DoDefaultAction() = 0;
    // Makes an item the selected one (a tab, a row); false when it cannot be.
    virtual bool Select() { return false; }

    virtual int32_t ChildCount() const { return 0; }
    // Item index (0-based), or null when there is no such item.
    virtual std::unique_ptr<AccessibleElement> Child(int32_t /*index*/) { return nullptr; }
    // The item that has the keyboard focus, and the selected one; None when there is none.
    virtual int32_t FocusedChild() const { return None; }
    virtual int32_t SelectedChild() const { return None; }
    virtual bool Exists() const { return true; }
};

// What a screen reader follows, announced by a control through its surface at the moment the
// control raises its own event. The item is a child index of the control, or None for itself.
enum class AccessibleEvent { Focus, Selection, ValueChange, StateChange };

// Makes an element what its surface tells screen readers, for as long as this lives.
class AccessibleRegistration {
public:
    AccessibleRegistration(Surface& surface, AccessibleElement& element)
        : m_surface(surface)
    {
        m_surface.SetAccessible(&element);
    }
    ~AccessibleRegistration() { m_surface.SetAccessible(nullptr); }
    AccessibleRegistration(const AccessibleRegistration&) = delete;
    AccessibleRegistration& operator=(const AccessibleRegistration&) = delete;

private:
    Surface& m_surface;
};

// Announces the selected item as the focus when the element has the focus, then as the selection.
void AnnounceSelection(Surface& surface, const AccessibleElement& element);

// The name of a control with a caption: the caption without its access-key marks, or the
// extender's name when that leaves nothing.
String AccessibleName(StringView caption, ControlSite& site);
// "Alt+" and the caption's access character in upper case; empty without one.
String AccessKeyShortcut(StringView caption);
// Focused, unavailable, and hot and pressed from the mouse; focusable when the control takes
// the focus.
uint32_t AccessibleStateOf(const Surface& surface, const MouseState& mouse, bool focusable);
// The state of an item that can be selected: selectable, selected, unavailable with its control.
uint32_t SelectableItemState(const Surface& surface, bool selected);
// Collapsed or expanded, for a control that drops something down.
uint32_t DropDownState(bool open);
// A rectangle of twips in a surface's scale, in pixels.
Rect PixelRectOf(const Surface& surface, double left, double top, double width, double height);

} // namespace tolva
