#pragma once
#include "core/accessibility.h"
#include "controls/label/tolva_label_enums.h"
#include "controls/label/tolva_label_events.h"
#include "core/click_forwarding.h"
#include "core/control_site.h"
#include "core/delegated_properties.h"
#include "core/mouse_state.h"
#include "core/paint_buffer.h"
#include "core/ole_color.h"
#include "core/property_bag.h"
#include "core/surface.h"

namespace tolva {

// A caption that behaves like a link or a small flat button: hot and pushed colours, an optional
// arrow or pointer glyph, letter spacing, an inset border, and a pop-up menu of its parent form
// placed by the direction of its arrow. It takes no keyboard input.
class TolvaLabel final : public DelegatedBackColor<TolvaLabel>,
                         public AccessibleElement,
                         private SurfaceListener,
                         private ClickTarget {
public:
    TolvaLabel(Surface& surface, ControlSite& site);
    ~TolvaLabel() override;
    TolvaLabel(const TolvaLabel&) = delete;
    TolvaLabel& operator=(const TolvaLabel&) = delete;

    void SetEventListener(TolvaLabelEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle. Reading and writing differ on purpose in key order and in the defaults of
    // BackColor and ForeColor.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Properties.
    OleColor BackColorPushed() const { return m_backColorPushed; }
    void SetBackColorPushed(OleColor color);
    OleColor BackColorActive() const { return m_backColorActive; }
    void SetBackColorActive(OleColor color);
    OleColor ForeColorPushed() const { return m_foreColorPushed; }
    void SetForeColorPushed(OleColor color);
    int32_t ArrowPosition() const { return m_arrowPosition; }
    void SetArrowPosition(int32_t position);
    int32_t ArrowIcon() const { return m_arrowIcon; }
    void SetArrowIcon(int32_t icon);
    OleColor ForeColorActive() const { return m_foreColorActive; }
    void SetForeColorActive(OleColor color);
    const String& Caption() const { return m_caption; }
    void SetCaption(StringView caption);
    const String& MenuName() const { return m_menuName; }
    void SetMenuName(StringView name);
    bool Kerning() const { return m_kerning; }
    void SetKerning(bool kerning);
    int32_t BorderStyle() const;
    void SetBorderStyle(int32_t style); // the surface knows 0 and 1 only: others throw error 380
    // Font, Enabled, ForeColor and BackColor are the surface's (DelegatedBackColor).
    OleColor ForeColorDisabled() const { return m_foreColorDisabled; }
    void SetForeColorDisabled(OleColor color);
    int32_t Alignment() const { return m_alignment; }
    void SetAlignment(int32_t alignment);

    // Methods.
    void Refresh();
    void AboutBox();

    // A label with an arrow or a menu is a link whose action "Jump" clicks it; any other is
    // static text without an action.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override;

    // Transient state, for the platform and tests.
    const MouseState& Mouse() const { return m_mouse; }

    static constexpr OleColor DefaultForeColorActive = 0x9CDFF7;
    static constexpr OleColor DefaultForeColorDisabled = 0x808080;
    static constexpr OleColor DefaultForeColorPushed = 0xFFFFFF;
    static constexpr OleColor DefaultBackColorActive = 0x000000;
    static constexpr OleColor DefaultBackColorPushed = 0x000000;
    static constexpr OleColor DefaultBackColor = 0x000000;
    static constexpr OleColor DefaultForeColor = 0xFFFFFF;
    static constexpr OleColor WrittenDefaultBackColor = SystemColor::ButtonFace;
    static constexpr OleColor WrittenDefaultForeColor = SystemColor::ButtonText;
    static constexpr const char16_t* DefaultCaption = u"TolvaLabel1";

private:
    friend DelegatedProperties<TolvaLabel>;

    // Surface notifications. The surface's own Click is ignored: Click comes from the mouse-up.
    void OnPaint() override;
    void OnResize() override;
    void OnAmbientChanged(StringView name) override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;

    // The shared mouse steps.
    void Repaint() override;
    void Clicked() override;
    bool IsLink() const;
    MouseEvents& Events() override { return *m_events; }

    void PropertyChanged(StringView key);
    void DrawLabel();
    void ShowMenu();

    static inline TolvaLabelEvents s_noEvents;

    Surface& m_surface;
    PaintBuffer m_buffer { m_surface };
    ControlSite& m_site;
    TolvaLabelEvents* m_events = &s_noEvents;

    OleColor m_foreColorPushed = DefaultForeColorPushed;
    OleColor m_backColorActive = DefaultBackColorActive;
    OleColor m_backColorPushed = DefaultBackColorPushed;
    OleColor m_foreColorActive = DefaultForeColorActive;
    OleColor m_foreColorDisabled = DefaultForeColorDisabled;
    int32_t m_alignment = tkLabelAlignment::tkAlignLeft;
    int32_t m_arrowIcon = tkArrowIcon::tkArrowLeft;
    int32_t m_arrowPosition = tkArrowPosition::tkNone;
    String m_caption = DefaultCaption;
    String m_menuName;
    bool m_kerning = false;
    MouseState m_mouse;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
