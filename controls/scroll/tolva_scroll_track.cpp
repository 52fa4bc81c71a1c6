#include "controls/scroll/tolva_scroll.h"
#include "core/automation_error.h"
#include "core/long_arithmetic.h"
#include "core/surface_fill.h"
#include <algorithm>
#include <cmath>

namespace tolva {

namespace {

constexpr float MinSliderHeight = 90;
constexpr float OnePixel = 15;
constexpr int32_t FirstRepeatDelay = 500;
constexpr int32_t RepeatInterval = 30;
constexpr OleColor Black = 0x000000;

// Geometry from values loaded unchecked can be far off any screen; the windows are never placed
// further out than this many twips.
float OnScreen(double twips)
{
    constexpr double limit = 1e9;
    return float(std::clamp(std::isnan(twips) ? 0.0 : twips, -limit, limit));
}

} // namespace

// Slider geometry. The slider is half as long as a proportional thumb, and at least 6 pixels.
// Its top is worked out from its old height before it takes the new one. When the slider stays
// where it is and the track was last painted as it would be painted now, the screen already
// shows the result: a list that sets the range for every row it adds draws nothing then.
void TolvaScroll::PositionSlider()
{
    const double track = double(m_surface.ScaleHeight()) - m_tlDown.Window().Height() - m_tlUp.Window().Height();
    const double range = double(m_max) - m_min;
    double height = MinSliderHeight;
    if (range > 0)
        height = std::max<double>(track * (m_largeChange / range) / 2, MinSliderHeight);
    Surface& slider = m_picSlider.Window();
    const float top = OnScreen(SliderTopFor());
    const float width = m_tlUp.Window().Width();
    const float sliderHeight = OnScreen(height);
    const bool sliderStays = slider.Left() == 0 && slider.Top() == top && slider.Width() == width
        && slider.Height() == sliderHeight;
    if (sliderStays && m_paintedTrack == CurrentTrack())
        return;
    slider.Move(0, top, width, sliderHeight);
    PaintSurface();
}

TolvaScroll::TrackLook TolvaScroll::CurrentTrack() const
{
    return TrackLook { m_surface.ScaleWidth(), m_surface.ScaleHeight(), m_surface.BackColor() };
}

double TolvaScroll::SliderTopFor() const
{
    const double free = double(m_surface.ScaleHeight()) - m_tlUp.Window().Height() - m_tlDown.Window().Height()
        - m_picSlider.Window().Height();
    const double range = double(m_max) - m_min;
    const double factor = range > 0 ? free / range : 0;
    return m_tlUp.Window().Height() + (double(m_value) - m_min) * factor;
}

// The value under the dragged slider, halves to even. Where the range or the free track is
// empty there is no position to read a value from, and the value stays as it is.
int32_t TolvaScroll::ValueAtSlider() const
{
    const double range = double(m_max) - m_min;
    const double free = double(m_surface.ScaleHeight()) - m_tlUp.Window().Height() - m_tlDown.Window().Height()
        - m_picSlider.Window().Height();
    if (range == 0 || free == 0)
        return m_value;
    const double factor = free / range;
    return RoundToLong(m_min + (double(m_picSlider.Window().Top()) - m_tlUp.Window().Height()) / factor);
}

// The control's own surface shows only its back colour; the parts lie on top of it.
void TolvaScroll::PaintSurface()
{
    PaintBackground(m_surface);
    m_paintedTrack = CurrentTrack();
}

void TolvaScroll::OnPaint()
{
    PaintSurface();
}

// Both arrows and the slider span the control's width; the arrows keep their height and the
// down arrow sits at the bottom.
void TolvaScroll::OnResize()
{
    const float width = m_surface.ScaleWidth();
    Surface& up = m_tlUp.Window();
    Surface& down = m_tlDown.Window();
    up.Move(0, 0, width, up.Height());
    down.Move(0, m_surface.ScaleHeight() - down.Height(), width, down.Height());
    PositionSlider();
}

void TolvaScroll::OnShow()
{
    m_dragAnchor = IdleAnchor;
    PositionSlider();
}

// Arrows: one step per press without clamping, so a step past a bound is refused and the value
// stays where it is; holding the button repeats the step.
void TolvaScroll::StepArrow(bool up)
{
    SetValue(up ? CheckedSubtract(m_value, m_smallChange) : CheckedAdd(m_value, m_smallChange));
    StartRepeat(up ? u"UP" : u"DOWN");
}

void TolvaScroll::ArrowEvents::MouseDown(int16_t&, int16_t&, float&, float&)
{
    m_owner.StepArrow(m_up);
}

void TolvaScroll::ArrowEvents::MouseUp(int16_t&, int16_t&, float&, float&)
{
    m_owner.StopRepeat();
}

// The second press of a double-click arrives as DblClick instead of MouseDown.
void TolvaScroll::ArrowEvents::DblClick()
{
    m_owner.StepArrow(m_up);
}

// Paging: a press on the track pages towards it by LargeChange, clamped to the bounds, and
// repeats until the button comes up, even after the slider has passed the pointer.
void TolvaScroll::PageTrack(int16_t shift, float x, float y)
{
    m_pressX = x;
    m_pressY = y;
    m_pressShift = shift;
    const bool pagingDown = y > m_picSlider.Window().Top();
    if (pagingDown) {
        const int32_t next = CheckedAdd(m_value, m_largeChange);
        SetValue(next >= m_max ? m_max : next);
    } else {
        const int32_t next = CheckedSubtract(m_value, m_largeChange);
        SetValue(next <= m_min ? m_min : next);
    }
    StartRepeat(pagingDown ? u"DOWNFAST" : u"UPFAST");
    PaintPageFeedback(pagingDown);
}

// The track on the paged side of the slider turns black, the other side shows the back colour.
void TolvaScroll::PaintPageFeedback(bool pagingDown)
{
    const Surface& slider = m_picSlider.Window();
    const float right = m_surface.ScaleWidth() - OnePixel;
    const OleColor back = m_surface.BackColor();
    m_paintedTrack.reset();
    FillSurfaceBox(m_surface, 0, m_tlUp.Window().Height(), right, slider.Top(), pagingDown ? back : Black);
    FillSurfaceBox(m_surface, 0, slider.Top() + slider.Height() - OnePixel, right, m_tlDown.Window().Top(),
        pagingDown ? Black : back);
}

void TolvaScroll::OnMouseDown(int16_t, int16_t shift, float x, float y)
{
    PageTrack(shift, x, y);
}

void TolvaScroll::OnMouseUp(int16_t, int16_t, float, float)
{
    m_paintedTrack.reset();
    FillSurfaceBox(m_surface, 0, m_tlUp.Window().Height(), m_surface.ScaleWidth() - OnePixel, m_tlDown.Window().Top(),
        m_surface.BackColor());
    StopRepeat();
}

void TolvaScroll::OnDblClick()
{
    PageTrack(m_pressShift, m_pressX, m_pressY);
}

// Auto-repeat: the first repeat 500 ms after the press, then every 30 ms, by the mode the press
// left in the timer's tag.
void TolvaScroll::StartRepeat(StringView mode)
{
    m_tmrScroll->SetInterval(FirstRepeatDelay);
    m_tmrScroll->SetTag(String(mode));
    m_tmrScroll->SetEnabled(true);
}

void TolvaScroll::StopRepeat()
{
    m_tmrScroll->SetEnabled(false);
}

// A step that overflows stops the repeat before the error goes out, so it is reported once.
void TolvaScroll::OnRepeat()
{
    m_tmrScroll->SetInterval(RepeatInterval);
    const String mode = m_tmrScroll->Tag();
    try {
        Repeat(mode);
    } catch (const AutomationError&) {
        StopRepeat();
        throw;
    }
}

// The paging repeats store the clamped value before assigning it, so even an assignment that is
// refused (a negative LargeChange can step past the other bound) leaves the value moved.
void TolvaScroll::Repeat(StringView mode)
{
    if (mode == u"UP") {
        SetValue(CheckedSubtract(m_value, m_smallChange));
    } else if (mode == u"DOWN") {
        SetValue(CheckedAdd(m_value, m_smallChange));
    } else if (mode == u"UPFAST") {
        m_value = std::max(m_min, CheckedSubtract(m_value, m_largeChange));
        SetValue(m_value);
    } else if (mode == u"DOWNFAST") {
        m_value = std::min(m_max, CheckedAdd(m_value, m_largeChange));
        SetValue(m_value);
    }
}

// Dragging: the slider follows the pointer between the arrows (flush on the down arrow at the
// bottom) and Value follows the slider directly, raising Scroll but never Change. The release
// snaps the slider to the place of the whole value.
void TolvaScroll::DragSlider(float y)
{
    Surface& slider = m_picSlider.Window();
    const float upHeight = m_tlUp.Window().Height();
    const float downTop = m_tlDown.Window().Top();
    const float newTop = slider.Top() + (y - m_dragAnchor);
    float top = newTop;
    if (newTop <= upHeight)
        top = upHeight;
    else if (newTop >= downTop - slider.Height() - OnePixel)
        top = downTop - slider.Height();
    slider.Move(slider.Left(), top, slider.Width(), slider.Height());

    const int32_t old = m_value;
    m_value = ValueAtSlider();
    PaintSurface();
    if (m_value != old) {
        m_surface.Announce(AccessibleEvent::ValueChange, AccessibleElement::None);
        m_events->Scroll();
    }
}

void TolvaScroll::EndDrag()
{
    m_dragAnchor = IdleAnchor;
    PositionSlider();
}

void TolvaScroll::SliderEvents::MouseDown(int16_t&, int16_t&, float&, float& y)
{
    m_owner.m_dragAnchor = y;
}

void TolvaScroll::SliderEvents::MouseMove(int16_t&, int16_t&, float&, float& y)
{
    if (m_owner.Dragging())
        m_owner.DragSlider(y);
}

void TolvaScroll::SliderEvents::MouseUp(int16_t&, int16_t&, float&, float&)
{
    m_owner.EndDrag();
}

} // namespace tolva
