#pragma once
#include "core/accessibility.h"
#include "controls/command/tolva_command_events.h"
#include "core/caption.h"
#include "core/click_forwarding.h"
#include "core/control_site.h"
#include "core/delegated_properties.h"
#include "core/mouse_state.h"
#include "core/ole_color.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "core/twips_canvas.h"

namespace tolva {

// Enumerations keep their published member names; each sits in a namespace of its own because
// different enumerations of the library reuse member names (tkLeft).
namespace tkStyle {
enum : int32_t { tkNormal = 0, tkMenu = 1 };
}
namespace tkCommandAlignment {
enum : int32_t { tkLeft = 0, tkCenter = 1 };
}

// A flat push button: a one-pixel black frame, a background that follows the mouse, a caption
// with an optional access key, focus and default marks, and in menu style a drop-down mark and
// a pop-up menu of its parent form under it.
class TolvaCommand final : public DelegatedProperties<TolvaCommand>,
                           public AccessibleElement,
                           private SurfaceListener,
                           private ClickTarget {
public:
    TolvaCommand(Surface& surface, ControlSite& site);
    ~TolvaCommand() override;
    TolvaCommand(const TolvaCommand&) = delete;
    TolvaCommand& operator=(const TolvaCommand&) = delete;

    void SetEventListener(TolvaCommandEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Properties.
    int32_t Style() const { return m_style; }
    void SetStyle(int32_t style);
    const String& Caption() const { return m_caption; }
    void SetCaption(StringView caption);
    OleColor BackColorPushed() const { return m_backColorPushed; }
    void SetBackColorPushed(OleColor color);
    const String& MenuName() const { return m_menuName; }
    void SetMenuName(StringView name);
    // Font, Enabled and ForeColor are the surface's (DelegatedProperties).
    OleColor ForeColorDisabled() const { return m_foreColorDisabled; }
    void SetForeColorDisabled(OleColor color);
    OleColor BackColor() const { return m_backColor; }
    void SetBackColor(OleColor color);
    OleColor BackColorActive() const { return m_backColorActive; }
    void SetBackColorActive(OleColor color);
    int32_t Alignment() const { return m_alignment; }
    void SetAlignment(int32_t alignment);

    // Methods.
    void Refresh();
    void AboutBox();

    // A push button whose action is "Press", or "Open" in menu style; the action clicks as the
    // access key does.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override;

    // Transient state, for the platform and tests.
    const MouseState& Mouse() const { return m_mouse; }
    bool HasFocusFlag() const { return m_hasFocus; }

private:
    friend DelegatedProperties<TolvaCommand>;

    // Surface notifications.
    void OnPaint() override;
    void OnAmbientChanged(StringView name) override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;
    void OnKeyDown(int16_t& keyCode, int16_t& shift) override;
    void OnKeyPress(int16_t& keyAscii) override;
    void OnKeyUp(int16_t& keyCode, int16_t& shift) override;
    void OnAccessKeyPress(char16_t key) override;
    void OnGotFocus() override;
    void OnLostFocus() override;

    // The shared mouse steps call back here.
    void Repaint() override;
    void Clicked() override;
    MouseEvents& Events() override { return *m_events; }

    // The setter pattern after the value is stored: tell the designer, then repaint.
    void PropertyChanged(StringView key);

    void DrawButton();
    void PrintCaption(const ScannedCaption& caption);
    void DrawDropDownMark();
    void ShowMenu();

    static inline TolvaCommandEvents s_noEvents;

    // The defaults of a new button and of a property bag without the key.
    static constexpr OleColor DefaultBackColor = 0xCEDBDE;
    static constexpr OleColor DefaultBackColorActive = 0xDEE7EF;
    static constexpr OleColor DefaultBackColorPushed = 0xBDCBCE;
    static constexpr OleColor DefaultForeColorDisabled = 0x8C969C;
    static constexpr OleColor DefaultForeColor = SystemColor::ButtonText;
    static constexpr const char16_t* DefaultCaption = u"Command";

    Surface& m_surface;
    ControlSite& m_site;
    TwipsCanvas m_picBuffer;
    TolvaCommandEvents* m_events = &s_noEvents;

    int32_t m_alignment = tkCommandAlignment::tkLeft;
    OleColor m_backColor = DefaultBackColor;
    OleColor m_backColorActive = DefaultBackColorActive;
    OleColor m_backColorPushed = DefaultBackColorPushed;
    OleColor m_foreColorDisabled = DefaultForeColorDisabled;
    String m_menuName;
    String m_caption = DefaultCaption;
    int32_t m_style = tkStyle::tkNormal;
    bool m_hasFocus = false;
    MouseState m_mouse;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
