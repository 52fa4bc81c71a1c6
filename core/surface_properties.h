#pragma once
#include "core/surface.h"

namespace tolva {

// The state every surface keeps whatever the platform: geometry and the properties controls
// delegate to their surface, with the values of a new surface. The window services are left to
// the platform's subclass, which overrides a setter when the change must reach a real window.
class SurfaceProperties : public Surface {
public:
    static constexpr int32_t TwipsPerPixel = 15;

    float Left() const override { return m_left; }
    float Top() const override { return m_top; }
    float Width() const override { return m_width; }
    float Height() const override { return m_height; }
    float ScaleWidth() const override;
    float ScaleHeight() const override;
    int32_t TwipsPerPixelX() const override { return TwipsPerPixel; }
    int32_t TwipsPerPixelY() const override { return TwipsPerPixel; }
    // A size that is negative or not a number is taken as 0.
    void Move(float left, float top, float width, float height) override;

    bool Enabled() const override { return m_enabled; }
    void SetEnabled(bool enabled) override { m_enabled = enabled; }
    OleColor ForeColor() const override { return m_foreColor; }
    void SetForeColor(OleColor color) override { m_foreColor = color; }
    OleColor BackColor() const override { return m_backColor; }
    void SetBackColor(OleColor color) override { m_backColor = color; }
    Font GetFont() const override { return m_font; }
    void SetFont(const Font& font) override { m_font = font; }
    int16_t BorderStyle() const override { return m_borderStyle; }
    void SetBorderStyle(int16_t style) override { m_borderStyle = style; }
    int16_t Appearance() const override { return m_appearance; }
    void SetAppearance(int16_t appearance) override { m_appearance = appearance; }
    bool Visible() const override { return m_visible; }
    void SetVisible(bool visible) override { m_visible = visible; }
    String AccessKeys() const override { return m_accessKeys; }
    void SetAccessKeys(StringView keys) override { m_accessKeys = keys; }
    void SetAccessible(AccessibleElement* element) override { m_accessible = element; }
    AccessibleElement* Accessible() const { return m_accessible; }

protected:
    SurfaceProperties() = default;

    // The width of the border on each side: a fixed single border is a one-pixel frame when
    // flat, the sunken client edge of 2 pixels in 3D.
    int32_t BorderPixels() const
    {
        if (m_borderStyle != 1)
            return 0;
        return m_appearance == SurfaceAppearance::Flat ? 1 : 2;
    }

private:
    float m_left = 0;
    float m_top = 0;
    float m_width = 0;
    float m_height = 0;
    bool m_enabled = true;
    OleColor m_foreColor = SystemColor::ButtonText;
    OleColor m_backColor = SystemColor::ButtonFace;
    Font m_font;
    int16_t m_borderStyle = 0;
    int16_t m_appearance = SurfaceAppearance::ThreeD;
    bool m_visible = true;
    String m_accessKeys;
    AccessibleElement* m_accessible = nullptr;
};

} // namespace tolva
