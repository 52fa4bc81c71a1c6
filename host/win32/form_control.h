#pragma once
#include "host/form/form_object.h"
#include "host/win32/client_site.h"
#include "host/win32/event_sink.h"
#include "host/win32/extender.h"
#include "platform/win32/com/com_ptr.h"
#include <oleidl.h>

namespace tolva::host {

class HostForm;

// One control of the form: its COM object created from the block's type (a ProgID such as
// TolvaKit.TolvaCommand), loaded from the block's properties, with its site, extender and event
// sink. The extender's keys (Left, Top, Width, Height, Visible, TabIndex, Default, Tag ...) stay
// with the form; the rest is the control's property bag.
class FormControl {
public:
    // Throws FormSyntaxError with the block's line when the type is no registered control, a
    // position is not a number, or the control refuses its properties.
    FormControl(HostForm& form, const FormObject& definition);
    ~FormControl();
    FormControl(const FormControl&) = delete;
    FormControl& operator=(const FormControl&) = delete;

    HostForm& Form() const { return m_form; }
    const String& Name() const { return m_name; }
    bool IsDefault() const { return m_default; }
    // The form makes one control its default button; the control hears of the ambient change.
    void SetDefault(bool isDefault);
    int TabIndex() const { return m_tabIndex; }
    const String& Tag() const { return m_tag; }
    void SetTag(String tag) { m_tag = std::move(tag); }

    // The extender's geometry, in twips of the form.
    float Left() const { return m_left; }
    float Top() const { return m_top; }
    float Width() const { return m_width; }
    float Height() const { return m_height; }
    void Move(float left, float top, float width, float height);
    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);
    // The control's rectangle in the form's client pixels.
    RECT Rect() const;
    // The control asked for another rectangle (OnPosRectChange).
    void SetRect(const RECT& rect);

    // Activates the control in place in the form's window (hidden when not Visible).
    void Activate();
    // Gives it the keyboard focus (UI activation).
    void Focus();
    void UIDeactivate();
    // Closes the control and lets go of it.
    void Close();

    HWND Window() const; // the control's window while in place, else null
    IUnknown* Object() const { return m_object.Get(); }
    IDispatch* Extender() const { return static_cast<IDispatch*>(m_extender.Get()); }
    bool TakesFocus() const;
    // Alt plus one of the control's access keys: passes the key to the control.
    bool HandleMnemonic(MSG& message);
    void AmbientChanged(DISPID id);

    // The block as it stands: the extender's keys, then the control's bag as it writes it now.
    FormObject Save() const;

private:
    void ReadExtender(const FormObject& definition);
    void LoadProperties(const FormObject& definition);

    HostForm& m_form;
    String m_name;
    String m_type;
    int m_line;
    std::vector<FormProperty> m_extenderProperties; // as read, updated on save
    float m_left = 0;
    float m_top = 0;
    float m_width = 1215; // a form designer's new button
    float m_height = 495;
    bool m_visible = true;
    bool m_default = false;
    int m_tabIndex = 0;
    String m_tag;
    DWORD m_miscStatus = 0;
    win32::ComPtr<IUnknown> m_object;
    win32::ComPtr<IOleObject> m_oleObject;
    win32::ComPtr<ClientSite> m_site;
    win32::ComPtr<host::Extender> m_extender;
    win32::ComPtr<EventSink> m_events;
    bool m_active = false;
};

} // namespace tolva::host
