#pragma once
#include "core/font.h"
#include "core/ole_color.h"
#include "host/form/form_object.h"
#include "host/win32/event_handlers.h"
#include "host/win32/event_log.h"
#include "host/win32/form_automation.h"
#include "host/win32/form_control.h"
#include "host/win32/in_place_frame.h"
#include "host/win32/menu_item.h"
#include "platform/win32/window/window_procedure.h"
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tolva::host {

// A form of the host: a top-level window holding the ActiveX controls and menus of a form
// block, the controls active in place. Every event of a control or menu is written to the log
// as "<name>_<event> <arguments>"; a menu's Click also runs <name>_Click of the form's code (the
// code connects to the controls' events itself).
class HostForm {
public:
    // Creates the window (hidden), the menus and the controls. Throws FormSyntaxError with the
    // line and reason for a block it cannot host. The controls see userMode as the ambient
    // UserMode: False when the form is being designed.
    HostForm(const FormObject& definition, EventLog& log, bool userMode = true);
    ~HostForm();
    HostForm(const HostForm&) = delete;
    HostForm& operator=(const HostForm&) = delete;

    void SetEventHandlers(EventHandlers* handlers) { m_handlers = handlers; }
    // Called when the user closes the window, before the controls go (to save the form).
    void SetClosingHandler(std::function<void()> closing) { m_closing = std::move(closing); }
    // The thread's message loop ends when the window is destroyed.
    void SetQuitOnClose(bool quit) { m_quitOnClose = quit; }
    // Draws over the form's background, under the controls (a designer's selection).
    void SetBackgroundPainter(std::function<void(HDC)> painter) { m_backgroundPainter = std::move(painter); }
    bool UserMode() const { return m_userMode; }

    // Shows the window, activates the controls in place and focuses the first in tab order.
    void Show();
    // Closes the controls and destroys the window.
    void Close();
    bool IsOpen() const { return m_window != nullptr; }

    HWND Window() const { return m_window; }
    IDispatch* Automation() const { return m_automation.Get(); }
    IOleInPlaceFrame* Frame() const { return m_frame.Get(); }
    const String& Name() const { return m_name; }
    const String& Caption() const { return m_caption; }
    void SetCaption(StringView caption);
    // Makes control the form's one default button (or none, with null).
    void SetDefaultButton(FormControl* control);
    Font AmbientFont() const { return m_font; }
    OleColor BackColor() const { return m_backColor; }
    OleColor ForeColor() const { return m_foreColor; }

    FormControl* FindControl(StringView name) const;
    std::vector<FormControl*> Controls() const;
    std::vector<MenuItem*> MenuItems() const; // every menu and item, depth first
    MenuItem* FindMenu(StringView name) const;
    // The menu an automation argument holds, if it is one of this form's.
    MenuItem* MenuOf(const VARIANT& value) const;
    // Controls(name) and the collection in file order: extenders and menus.
    IDispatch* ControlObject(StringView name) const;
    std::vector<IDispatch*> ControlObjects() const;

    // The form block as it stands now.
    FormObject Save() const;

    // Services for the controls, menus and the form's automation object.
    void LogEvent(StringView object, StringView event, std::span<VARIANT*> arguments);
    void ClickMenu(MenuItem& item);
    // Shows menu's items at (x, y) twips of the client area (the pointer when left out) and
    // raises the chosen item's Click. flags: 2 right button, 4 centred, 8 right-aligned.
    void PopupMenu(MenuItem& menu, int flags, std::optional<double> x, std::optional<double> y);
    void OnControlUIActivate(FormControl& control);
    void OnControlUIDeactivate(FormControl& control);

    // Handles Tab and the controls' access keys; true when the message was used up.
    bool PreTranslateMessage(MSG& message);

private:
    struct Child {
        bool menu;
        size_t index;
    };

    // The window's life, through OwnedWindowProcedure.
    template <class Owner> friend LRESULT CALLBACK win32::OwnedWindowProcedure(HWND, UINT, WPARAM, LPARAM);
    void Attach(HWND window);
    void Detach();
    LRESULT HandleMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void ReadFormProperties(const FormObject& definition);
    void CreateFormWindow(const FormObject& definition);
    void UpdateMenuBar();
    MenuItem* FindMenuById(UINT id) const;
    std::vector<FormControl*> TabOrder() const;
    void FocusNext(bool backwards);

    EventLog& m_log;
    EventHandlers* m_handlers = nullptr;
    std::function<void()> m_closing;
    bool m_quitOnClose = false;
    bool m_userMode = true;
    std::function<void(HDC)> m_backgroundPainter;

    FormObject m_definition; // the form's own block, without children
    String m_name;
    String m_caption;
    Font m_font;
    OleColor m_backColor = SystemColor::ButtonFace;
    OleColor m_foreColor = SystemColor::ButtonText;
    float m_clientWidth = 4680;
    float m_clientHeight = 3195;

    HWND m_window = nullptr;
    win32::MenuHandle m_menuBar;
    win32::ComPtr<InPlaceFrame> m_frame;
    win32::ComPtr<FormAutomation> m_automation;
    std::vector<std::unique_ptr<FormControl>> m_controls;
    std::vector<win32::ComPtr<MenuItem>> m_menus;
    std::vector<Child> m_children; // file order
    FormControl* m_uiActive = nullptr;
};

} // namespace tolva::host
