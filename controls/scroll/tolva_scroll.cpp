#include "controls/scroll/tolva_scroll.h"
#include "core/long_arithmetic.h"
#include "core/memory_property_bag.h"
#include "core/variant.h"
#include <algorithm>

namespace tolva {

namespace {

constexpr float PartSize = 255; // the parts' design size, 450 HIMETRIC

constexpr StringView InvalidValueMessage = u"Invalid property value";
constexpr StringView InvalidLargeChangeMessage = u"Invalid propery value";

} // namespace

TolvaScroll::TolvaScroll(Surface& surface, ControlSite& site)
    : m_surface(surface)
    , m_site(site)
    , m_tlUp(surface, site, u"tlUp")
    , m_tlDown(surface, site, u"tlDown")
    , m_picSlider(surface, site, u"picSlider")
    , m_tmrScroll(surface.CreateTimer())
{
    ApplyDesignValues();
    m_tlUp->SetEventListener(&m_upEvents);
    m_tlDown->SetEventListener(&m_downEvents);
    m_picSlider->SetEventListener(&m_sliderEvents);
    m_tmrScroll->SetEnabled(false); // a new timer's state is the platform's; this one runs only while held
    m_tmrScroll->SetTickHandler([this] { OnRepeat(); });
    m_surface.SetListener(this);
}

TolvaScroll::~TolvaScroll()
{
    m_surface.SetListener(nullptr);
}

// The parts as they were laid out at design time, loaded as any control is from its saved form.
void TolvaScroll::ApplyDesignValues()
{
    const auto arrowBag = [](int32_t icon) {
        MemoryPropertyBag bag;
        bag.Set(u"BackColor", DefaultBackColor);
        bag.Set(u"ForeColor", DefaultForeColor);
        bag.Set(u"BorderStyle", int32_t(tkLabelBorderStyle::Inset));
        bag.Set(u"Caption", u"");
        bag.Set(u"ForeColorActive", DefaultForeColorActive);
        bag.Set(u"ArrowIcon", icon);
        bag.Set(u"ArrowPosition", int32_t(tkArrowPosition::tkEnd));
        bag.Set(u"BackColorActive", DefaultBackColorActive);
        bag.Set(u"BackColorPushed", DefaultBackColorActive);
        return bag;
    };
    MemoryPropertyBag upBag = arrowBag(tkArrowIcon::tkArrowUp);
    upBag.Set(u"Font", Font { .name = u"MS Sans Serif" });
    MemoryPropertyBag downBag = arrowBag(tkArrowIcon::tkArrowDown);
    MemoryPropertyBag sliderBag;
    sliderBag.Set(u"BackColor", DefaultBackColor);

    m_tlUp.Window().Move(0, 0, PartSize, PartSize);
    m_tlDown.Window().Move(0, 0, PartSize, PartSize);
    m_picSlider.Window().Move(0, 0, PartSize, PartSize);
    m_tlUp->ReadProperties(upBag);
    m_tlDown->ReadProperties(downBag);
    m_picSlider->ReadProperties(sliderBag);
}

// Lifecycle.
void TolvaScroll::InitProperties()
{
    m_value = 1;
    m_min = 1;
    m_max = 100;
    m_largeChange = 1;
    m_smallChange = 1;
}

// The saved colours go to the down arrow alone: the up arrow and the slider keep their design
// colours until the colour properties are set again.
void TolvaScroll::ReadProperties(PropertyBag& bag)
{
    m_surface.SetEnabled(bag.ReadProperty(u"Enabled", true).ToBool());
    m_tlDown->SetBackColor(bag.ReadProperty(u"BackColor", DefaultBackColor).ToColor());
    m_tlDown->SetBackColorActive(bag.ReadProperty(u"BackColorActive", DefaultBackColorActive).ToColor());
    m_tlDown->SetBackColorPushed(bag.ReadProperty(u"BackColorPushed", DefaultBackColorPushed).ToColor());
    m_tlDown->SetForeColor(bag.ReadProperty(u"ForeColor", DefaultForeColor).ToColor());
    m_tlDown->SetForeColorActive(bag.ReadProperty(u"ForeColorActive", DefaultForeColorActive).ToColor());
    m_tlDown->SetForeColorPushed(bag.ReadProperty(u"ForeColorPushed", DefaultForeColorPushed).ToColor());
    m_value = bag.ReadProperty(u"Value", int32_t(1)).ToInt32();
    m_min = bag.ReadProperty(u"Min", int32_t(1)).ToInt32();
    m_max = bag.ReadProperty(u"Max", int32_t(100)).ToInt32();
    m_largeChange = bag.ReadProperty(u"LargeChange", int32_t(1)).ToInt32();
    m_smallChange = bag.ReadProperty(u"SmallChange", int32_t(1)).ToInt32();
}

void TolvaScroll::WriteProperties(PropertyBag& bag) const
{
    bag.WriteProperty(u"Enabled", m_surface.Enabled(), true);
    bag.WriteProperty(u"BackColor", m_tlDown->BackColor(), DefaultBackColor);
    bag.WriteProperty(u"BackColorActive", m_tlDown->BackColorActive(), DefaultBackColorActive);
    bag.WriteProperty(u"BackColorPushed", m_tlDown->BackColorPushed(), DefaultBackColorPushed);
    bag.WriteProperty(u"ForeColor", m_tlDown->ForeColor(), DefaultForeColor);
    bag.WriteProperty(u"ForeColorActive", m_tlDown->ForeColorActive(), DefaultForeColorActive);
    bag.WriteProperty(u"ForeColorPushed", m_tlDown->ForeColorPushed(), DefaultForeColorPushed);
    bag.WriteProperty(u"Value", m_value, int32_t(1));
    bag.WriteProperty(u"Min", m_min, int32_t(1));
    bag.WriteProperty(u"Max", m_max, int32_t(100));
    bag.WriteProperty(u"LargeChange", m_largeChange, int32_t(1));
    bag.WriteProperty(u"SmallChange", m_smallChange, int32_t(1));
}

// Properties.
bool TolvaScroll::Enabled() const
{
    return m_surface.Enabled();
}

void TolvaScroll::SetEnabled(bool enabled)
{
    m_surface.SetEnabled(enabled);
    m_site.PropertyChanged(u"Enabled");
}

OleColor TolvaScroll::BackColor() const
{
    return m_tlDown->BackColor();
}

void TolvaScroll::SetBackColor(OleColor color)
{
    m_tlDown->SetBackColor(color);
    m_tlUp->SetBackColor(color);
    m_picSlider->SetBackColor(color);
    m_site.PropertyChanged(u"BackColor");
}

OleColor TolvaScroll::BackColorActive() const
{
    return m_tlDown->BackColorActive();
}

void TolvaScroll::SetBackColorActive(OleColor color)
{
    m_tlDown->SetBackColorActive(color);
    m_tlUp->SetBackColorActive(color);
    m_site.PropertyChanged(u"BackColorActive");
}

OleColor TolvaScroll::BackColorPushed() const
{
    return m_tlDown->BackColorPushed();
}

void TolvaScroll::SetBackColorPushed(OleColor color)
{
    m_tlDown->SetBackColorPushed(color);
    m_tlUp->SetBackColorPushed(color);
    m_site.PropertyChanged(u"BackColorPushed");
}

OleColor TolvaScroll::ForeColor() const
{
    return m_tlDown->ForeColor();
}

void TolvaScroll::SetForeColor(OleColor color)
{
    m_tlDown->SetForeColor(color);
    m_tlUp->SetForeColor(color);
    m_site.PropertyChanged(u"ForeColor");
}

OleColor TolvaScroll::ForeColorActive() const
{
    return m_tlDown->ForeColorActive();
}

void TolvaScroll::SetForeColorActive(OleColor color)
{
    m_tlDown->SetForeColorActive(color);
    m_tlUp->SetForeColorActive(color);
    m_site.PropertyChanged(u"ForeColorActive");
}

OleColor TolvaScroll::ForeColorPushed() const
{
    return m_tlDown->ForeColorPushed();
}

void TolvaScroll::SetForeColorPushed(OleColor color)
{
    m_tlDown->SetForeColorPushed(color);
    m_tlUp->SetForeColorPushed(color);
    m_site.PropertyChanged(u"ForeColorPushed");
}

// A value outside the bounds is refused; the designer hears about it, a running program does not.
void TolvaScroll::SetValue(int32_t value)
{
    if (value < m_min || value > m_max) {
        if (!m_site.UserMode())
            m_site.MessageBox(InvalidValueMessage, MessageBoxStyle::Critical);
        return;
    }
    m_value = value;
    m_site.PropertyChanged(u"Value");
    m_surface.Announce(AccessibleEvent::ValueChange, AccessibleElement::None);
    m_events->Change();
    PositionSlider();
}

AccessibleDescription TolvaScroll::Describe() const
{
    return { .name = m_site.ExtenderName(),
        .role = AccessibleRole::ScrollBar,
        .state = AccessibleStateOf(m_surface, MouseState {}, false),
        .value = Variant(m_value).ToString(),
        .shortcut = {},
        .defaultAction = {},
        .location = {} };
}

// Unlike every other setter, a bad Min is reported only at run time and ignored at design time.
// A new bound pulls Value in without Change and caps both steps at the new range. The bound is
// stored and reported before the range is worked out, so a range past 32 bits keeps the new
// bound when its Overflow error goes out.
void TolvaScroll::SetMin(int32_t value)
{
    if (value >= m_max) {
        if (m_site.UserMode())
            m_site.MessageBox(InvalidValueMessage, MessageBoxStyle::Critical);
        return;
    }
    m_min = value;
    m_site.PropertyChanged(u"Min");
    if (m_value < m_min)
        m_value = m_min;
    const int32_t range = CheckedSubtract(m_max, m_min);
    m_largeChange = std::min(m_largeChange, range);
    m_smallChange = std::min(m_smallChange, range);
    PositionSlider();
}

void TolvaScroll::SetMax(int32_t value)
{
    if (value <= m_min) {
        if (!m_site.UserMode())
            m_site.MessageBox(InvalidValueMessage, MessageBoxStyle::Critical);
        return;
    }
    m_max = value;
    m_site.PropertyChanged(u"Max");
    if (m_value > m_max)
        m_value = m_max;
    const int32_t range = CheckedSubtract(m_max, m_min);
    m_largeChange = std::min(m_largeChange, range);
    m_smallChange = std::min(m_smallChange, range);
    PositionSlider();
}

// Both steps are measured against Max - Min + 1 and have no lower bound. LargeChange keeps its
// own spelling of the message.
void TolvaScroll::SetLargeChange(int32_t value)
{
    if (value > CheckedAdd(CheckedSubtract(Max(), Min()), 1)) {
        if (!m_site.UserMode())
            m_site.MessageBox(InvalidLargeChangeMessage, MessageBoxStyle::Critical);
        return;
    }
    m_largeChange = value;
    m_site.PropertyChanged(u"LargeChange");
    PositionSlider();
}

// The test is made on the step already stored, not on the new one: a step larger than the range
// can be set once, and after that every further assignment is refused.
void TolvaScroll::SetSmallChange(int32_t value)
{
    if (m_smallChange > CheckedAdd(CheckedSubtract(Max(), Min()), 1)) {
        if (!m_site.UserMode())
            m_site.MessageBox(InvalidValueMessage, MessageBoxStyle::Critical);
        return;
    }
    m_smallChange = value;
    m_site.PropertyChanged(u"SmallChange");
    PositionSlider();
}

// Methods.
void TolvaScroll::Refresh()
{
    m_surface.Refresh();
}

void TolvaScroll::AboutBox()
{
    m_site.ShowAboutBox();
}

} // namespace tolva
