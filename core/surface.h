#pragma once
#include "core/canvas.h"
#include "core/font.h"
#include "core/ole_color.h"
#include "core/rect.h"
#include "core/string.h"
#include "core/text_box.h"
#include "core/timer.h"
#include <cstdint>
#include <memory>
#include <optional>

namespace tolva {

class AccessibleElement;
enum class AccessibleEvent;

// The notifications a platform delivers to the control that owns a surface. Mouse coordinates
// are twips in the surface's own scale. Key arguments are references: a handler may change them.
class SurfaceListener {
public:
    virtual ~SurfaceListener() = default;

    virtual void OnPaint() {}
    virtual void OnResize() {}
    virtual void OnShow() {}
    virtual void OnHide() {} // the host hid the control
    virtual void OnAmbientChanged(StringView /*name*/) {}
    virtual void OnClick() {}
    virtual void OnDblClick() {}
    virtual void OnMouseDown(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) {}
    virtual void OnMouseMove(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) {}
    virtual void OnMouseUp(int16_t /*button*/, int16_t /*shift*/, float /*x*/, float /*y*/) {}
    virtual void OnKeyDown(int16_t& /*keyCode*/, int16_t& /*shift*/) {}
    virtual void OnKeyPress(int16_t& /*keyAscii*/) {}
    virtual void OnKeyUp(int16_t& /*keyCode*/, int16_t& /*shift*/) {}
    virtual void OnAccessKeyPress(char16_t /*key*/) {}
    virtual void OnGotFocus() {}
    virtual void OnLostFocus() {}
    // A pop-up window is no longer the active window. press: where on the screen (pixels) the
    // mouse press went that took the activation, when a press did.
    virtual void OnDeactivate(std::optional<PixelPoint> /*press*/) {}
};

// How a fixed single border looks, as a form designer's Appearance: flat, a one-pixel black
// frame; 3D, the sunken client edge of two pixels.
namespace SurfaceAppearance {
enum : int16_t { Flat = 0, ThreeD = 1 };
}

// A control's own window. Sizes and positions are twips; the surface's scale is twips with the
// origin at the top-left of its client area.
class Surface {
public:
    virtual ~Surface() = default;

    virtual void SetListener(SurfaceListener* listener) = 0;

    // Geometry. Width and Height are the outer size; the scale excludes the border.
    virtual float Left() const = 0;
    virtual float Top() const = 0;
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual float ScaleWidth() const = 0;
    virtual float ScaleHeight() const = 0;
    virtual int32_t TwipsPerPixelX() const = 0;
    virtual int32_t TwipsPerPixelY() const = 0;
    virtual void Move(float left, float top, float width, float height) = 0; // in the parent's scale

    // Properties that controls delegate to their surface. A new surface starts with back colour
    // 0x8000000F, fore colour 0x80000012, enabled, no border, 3D appearance, visible, the
    // default font.
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual OleColor ForeColor() const = 0;
    virtual void SetForeColor(OleColor color) = 0;
    virtual OleColor BackColor() const = 0;
    virtual void SetBackColor(OleColor color) = 0;
    virtual Font GetFont() const = 0;
    virtual void SetFont(const Font& font) = 0;
    virtual int16_t BorderStyle() const = 0; // 0 none, 1 fixed single
    virtual void SetBorderStyle(int16_t style) = 0;
    virtual int16_t Appearance() const = 0; // a SurfaceAppearance: how a fixed single border looks
    virtual void SetAppearance(int16_t appearance) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual String AccessKeys() const = 0;
    virtual void SetAccessKeys(StringView keys) = 0;

    // Window services.
    virtual bool HasFocus() const = 0; // the window with the keyboard focus is this one
    virtual void SetFocus() = 0; // takes the keyboard focus
    virtual void SetCapture() = 0;
    virtual void ReleaseCapture() = 0; // releases the capture whoever holds it
    virtual PixelPoint ScreenOrigin() const = 0; // client (0, 0) in screen pixels
    virtual PixelPoint ScreenSize() const = 0; // the screen's width and height in pixels
    virtual void Refresh() = 0; // asks the platform to repaint; OnPaint follows

    // Drawing: an off-screen canvas compatible with this window, then copied onto it.
    virtual std::unique_ptr<Canvas> CreateCanvas(int32_t width, int32_t height) = 0;
    virtual void Present(const Canvas& image, int32_t x, int32_t y, int32_t width, int32_t height) = 0;

    // Parts owned by the control: child windows for embedded controls, the platform's own
    // single-line text box, and timers.
    virtual std::unique_ptr<Surface> CreateChild() = 0;
    virtual std::unique_ptr<TextBox> CreateTextBox() = 0;
    virtual std::unique_ptr<Timer> CreateTimer() = 0;

    // Screen readers: the element they read for this window (null: the platform's own reading),
    // and the events they follow, about the element itself (item -1) or one of its items.
    virtual void SetAccessible(AccessibleElement* element) = 0;
    virtual void Announce(AccessibleEvent event, int32_t item) = 0;
};

} // namespace tolva
