#pragma once
#include "core/canvas.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// The image of a control that has no window: nothing is drawn and nothing is measured, since no
// one can see it. System colours are the real ones.
class NullCanvas final : public Canvas {
public:
    NullCanvas(int32_t width, int32_t height)
        : m_width(width)
        , m_height(height)
    { }

    int32_t Width() const override { return m_width; }
    int32_t Height() const override { return m_height; }
    void FillRect(int32_t, int32_t, int32_t, int32_t, ColorRef) override { }
    void Line(int32_t, int32_t, int32_t, int32_t, ColorRef) override { }
    void DrawText(int32_t, int32_t, StringView, const CanvasFont&, ColorRef) override { }
    TextExtent MeasureText(StringView, const CanvasFont&) override { return {}; }
    ColorRef SystemColor(int index) const override { return ColorRef(GetSysColor(index)); }

private:
    int32_t m_width;
    int32_t m_height;
};

} // namespace tolva::win32
