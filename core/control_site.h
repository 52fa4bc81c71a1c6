#pragma once
#include "core/font.h"
#include "core/format/formatter.h"
#include "core/surface.h"
#include "core/string.h"
#include <memory>

namespace tolva {

// An object of the host that a control only passes back to it (a menu control of the form).
class InputPopups;

class HostObject {
public:
    virtual ~HostObject() = default;
};

// The form a control sits on, reached late-bound through the extender's Parent. Every call may
// throw AutomationError when the form lacks the member; callers that must not fail catch it.
class ParentForm {
public:
    virtual ~ParentForm() = default;

    // Controls(name): the named control, or nullptr when nothing comes back.
    virtual std::shared_ptr<HostObject> Control(StringView name) = 0;
    // The form window's client origin (its "hwnd" converted with ClientToScreen), in pixels.
    virtual PixelPoint ScreenOrigin() = 0;
    // PopupMenu menu, (flags omitted), x, y: coordinates in the form's scale.
    virtual void PopupMenu(HostObject& menu, double x, double y) = 0;
};

namespace MessageBoxStyle {
constexpr int Ok = 0;
constexpr int Critical = 16;
constexpr int Exclamation = 48;
}

// The host services a control uses: designer notifications, ambients, extender, parent form,
// modal messages, formatting. Without a container the site answers with the defaults.
class ControlSite {
public:
    virtual ~ControlSite() = default;

    virtual void PropertyChanged(StringView key) = 0;

    virtual Font AmbientFont() = 0;
    virtual bool UserMode() = 0;
    virtual bool DisplayAsDefault() = 0;

    virtual String ExtenderName() = 0;
    virtual float ExtenderWidth() = 0;  // in the container's scale (twips)
    virtual float ExtenderHeight() = 0;
    virtual ParentForm* Parent() = 0; // nullptr without a form

    // A modal message box with the default title; returns the button pressed. Where no window
    // can own it (no container), nothing is shown and 0 comes back.
    virtual int MessageBox(StringView prompt, int style) = 0;
    virtual void Beep() = 0;
    virtual void ShowAboutBox() = 0; // modal; returns when it is closed

    // The platform's formatting and parsing of values in the user's locale; lives as long as
    // the site.
    virtual Formatter& Formatting() = 0;

    // The library's pop-up windows of this thread, shared by every control on it.
    virtual InputPopups& Popups() = 0;

    // Keeps the control alive while the returned hold lives, though its client let go of it
    // meanwhile. The host guards its own calls into the control; a call that comes from
    // elsewhere (a pop-up answering its owner) and may reach client code takes a hold. Without
    // a host object there is nothing to hold.
    virtual std::shared_ptr<void> Hold() { return nullptr; }
};

} // namespace tolva
