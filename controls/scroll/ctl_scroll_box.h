#pragma once
#include "controls/scroll/ctl_scroll_box_events.h"
#include "controls/scroll/scroll_box_drawing_state.h"
#include "core/control_site.h"
#include "core/ole_color.h"
#include "core/property_bag.h"
#include "core/surface.h"

namespace tolva {

// The library's private plain surface: a back colour and a flat border (a one-pixel frame), no
// drawing of its own, and its mouse events passed on to its owner. TolvaScroll's slider is one.
class ctlScrollBox final : private SurfaceListener {
public:
    ctlScrollBox(Surface& surface, ControlSite& site);
    ~ctlScrollBox() override;
    ctlScrollBox(const ctlScrollBox&) = delete;
    ctlScrollBox& operator=(const ctlScrollBox&) = delete;

    void SetEventListener(ctlScrollBoxEvents* events) { m_events = events ? events : &s_noEvents; }

    // Lifecycle. Reading and writing handle the same keys in the same order.
    void InitProperties();
    void ReadProperties(PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Properties: the surface's own.
    OleColor BackColor() const;
    void SetBackColor(OleColor color);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    int16_t BorderStyle() const;
    void SetBorderStyle(int16_t style); // 0 none or 1 fixed single; others throw error 380

    const ScrollBoxDrawingState& DrawingState() const { return m_drawingState; }

    static constexpr OleColor DefaultBackColor = SystemColor::ButtonFace;
    static constexpr int16_t DefaultBorderStyle = 1;

private:
    void OnPaint() override;
    void OnClick() override;
    void OnDblClick() override;
    void OnMouseDown(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseMove(int16_t button, int16_t shift, float x, float y) override;
    void OnMouseUp(int16_t button, int16_t shift, float x, float y) override;

    void ReadSurfaceKeys(PropertyBag& bag);
    void WriteSurfaceKeys(PropertyBag& bag) const;

    static inline ctlScrollBoxEvents s_noEvents;

    Surface& m_surface;
    ControlSite& m_site;
    ctlScrollBoxEvents* m_events = &s_noEvents;
    ScrollBoxDrawingState m_drawingState;
};

} // namespace tolva
