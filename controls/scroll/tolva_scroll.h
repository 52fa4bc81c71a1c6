#pragma once
#include "controls/label/tolva_label.h"
#include "controls/scroll/ctl_scroll_box.h"
#include "controls/scroll/tolva_scroll_events.h"
#include "core/accessibility.h"
#include "core/control_site.h"
#include "core/embedded_control.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "core/timer.h"
#include <memory>
#include <optional>

namespace tolva {

// A vertical scroll bar drawn from its parts: the arrow buttons tlUp and tlDown (labels), the
// slider picSlider (a scroll box) on the track between them, and the repeat timer tmrScroll. The
// value grows downwards. It talks to its parts only through their public members and events.
class TolvaScroll final : public AccessibleElement, private SurfaceListener {
public:
    TolvaScroll(Surface& surface, ControlSite& site);
    ~TolvaScroll() override;
    TolvaScroll(const TolvaScroll&) = delete;
    TolvaScroll& operator=(const TolvaScroll&) = delete;

    void SetEventListener(TolvaScrollEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle. Loading stores the numbers unchecked and gives the colours to tlDown only.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Properties. The colours live in the arrows: getters read tlDown's.
    bool Enabled() const;
    void SetEnabled(bool enabled);
    OleColor BackColor() const;
    void SetBackColor(OleColor color);
    OleColor BackColorActive() const;
    void SetBackColorActive(OleColor color);
    OleColor BackColorPushed() const;
    void SetBackColorPushed(OleColor color);
    OleColor ForeColor() const;
    void SetForeColor(OleColor color);
    OleColor ForeColorActive() const;
    void SetForeColorActive(OleColor color);
    OleColor ForeColorPushed() const;
    void SetForeColorPushed(OleColor color);

    // Out-of-range values are refused, with a message box in one mode and silently in the other
    // (see each setter). A range or step that needs more than 32 bits throws error 6 (Overflow).
    int32_t Value() const { return m_value; }
    void SetValue(int32_t value);
    int32_t Min() const { return m_min; }
    void SetMin(int32_t value);
    int32_t Max() const { return m_max; }
    void SetMax(int32_t value);
    int32_t LargeChange() const { return m_largeChange; }
    void SetLargeChange(int32_t value);
    int32_t SmallChange() const { return m_smallChange; }
    void SetSmallChange(int32_t value);

    // Methods.
    void Refresh();
    void AboutBox();

    // A scroll bar named after its extender, whose value is Value; it has no default action.
    AccessibleDescription Describe() const override;
    bool DoDefaultAction() override { return false; }

    static constexpr OleColor DefaultBackColor = 0xCEDBDE;
    static constexpr OleColor DefaultBackColorActive = 0xDEE7EF;
    static constexpr OleColor DefaultBackColorPushed = 0xBDCBCE;
    static constexpr OleColor DefaultForeColor = 0x000000;
    static constexpr OleColor DefaultForeColorActive = 0xFFFFFF;
    static constexpr OleColor DefaultForeColorPushed = 0xFFFFFF;

private:
    // The arrows and the slider report to the scroll bar as to any host.
    class ArrowEvents final : public TolvaLabelEvents {
    public:
        ArrowEvents(TolvaScroll& owner, bool up)
            : m_owner(owner)
            , m_up(up)
        { }
        void DblClick() override;
        void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override;
        void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override;

    private:
        TolvaScroll& m_owner;
        bool m_up;
    };
    class SliderEvents final : public ctlScrollBoxEvents {
    public:
        explicit SliderEvents(TolvaScroll& owner)
            : m_owner(owner)
        { }
        void MouseDown(int16_t& button, int16_t& shift, float& x, float& y) override;
        void MouseMove(int16_t& button, int16_t& shift, float& x, float& y) override;
        void MouseUp(int16_t& button, int16_t& shift, float& x, float& y) override;

    private:
        TolvaScroll& m_owner;
    };

    // Surface notifications: presses on the track page, the surface paints its back colour.
    void OnPaint() override;
    void OnResize() override;
    void OnShow() override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;

    void ApplyDesignValues();
    void PositionSlider();
    double SliderTopFor() const;
    int32_t ValueAtSlider() const;
    // What the track shows when painted plainly: the surface's size and back colour.
    struct TrackLook {
        float width;
        float height;
        OleColor back;
        bool operator==(const TrackLook&) const = default;
    };
    TrackLook CurrentTrack() const;
    void PaintSurface();
    void StepArrow(bool up);
    void PageTrack(int16_t shift, float x, float y);
    void PaintPageFeedback(bool pagingDown);
    void StartRepeat(StringView mode);
    void StopRepeat();
    void OnRepeat();
    void Repeat(StringView mode);
    void DragSlider(float y);
    void EndDrag();
    bool Dragging() const { return m_dragAnchor >= 0; }

    static inline TolvaScrollEvents s_noEvents;

    Surface& m_surface;
    ControlSite& m_site;
    TolvaScrollEvents* m_events = &s_noEvents;

    int32_t m_value = 1;
    int32_t m_min = 1;
    int32_t m_max = 100;
    int32_t m_largeChange = 1;
    int32_t m_smallChange = 1;
    static constexpr float IdleAnchor = -30;
    float m_dragAnchor = IdleAnchor; // slider-relative Y of the press that started a drag
    float m_pressX = 0; // the last press on the track, repeated by a double-click
    float m_pressY = 0;
    int16_t m_pressShift = 0;
    std::optional<TrackLook> m_paintedTrack; // the plain track on screen, until something else is painted

    // The listeners outlive the parts that call them.
    ArrowEvents m_upEvents { *this, true };
    ArrowEvents m_downEvents { *this, false };
    SliderEvents m_sliderEvents { *this };
    EmbeddedControl<TolvaLabel> m_tlUp;
    EmbeddedControl<TolvaLabel> m_tlDown;
    EmbeddedControl<ctlScrollBox> m_picSlider;
    std::unique_ptr<Timer> m_tmrScroll;
    AccessibleRegistration m_accessible { m_surface, *this };
};

} // namespace tolva
