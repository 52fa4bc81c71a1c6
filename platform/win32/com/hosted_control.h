#pragma once
#include "core/control_site.h"
#include "core/font.h"
#include "core/property_bag.h"
#include "core/surface.h"
#include "platform/win32/com/event_raiser.h"
#include <concepts>
#include <memory>
#include <optional>

namespace tolva::win32 {

// A core control as the COM object drives it, whatever its class: the lifecycle calls, the
// font the shell keeps a font object for, and the typed object for the binding table.
class HostedControl {
public:
    virtual ~HostedControl() = default;

    virtual void InitProperties() = 0;
    virtual void ReadProperties(PropertyBag& bag) = 0;
    virtual void WriteProperties(PropertyBag& bag) = 0;

    // The control's font; a control without one has the default font and ignores SetFont.
    virtual Font GetFont() const = 0;
    virtual void SetFont(const Font& font) = 0;

    virtual void* Object() = 0; // the control, as the class the binding table was made for
};

template <class Control>
concept ControlWithFont = requires(Control& control, const Font& font)
{
    {
        control.GetFont()
        } -> std::convertible_to<Font>;
    control.SetFont(font);
};

// Control, with Forwarder turning its listener calls into raised events. Without a raiser the
// control raises nothing (a scratch copy used to validate loaded values).
template <class Control, class Forwarder> class HostedControlOf final : public HostedControl {
public:
    HostedControlOf(Surface& surface, ControlSite& site, EventRaiser* events)
        : m_control(surface, site)
    {
        if (events)
            m_control.SetEventListener(&m_forwarder.emplace(*events));
    }
    ~HostedControlOf() override { m_control.SetEventListener(nullptr); }

    void InitProperties() override { m_control.InitProperties(); }
    void ReadProperties(PropertyBag& bag) override { m_control.ReadProperties(bag); }
    void WriteProperties(PropertyBag& bag) override { m_control.WriteProperties(bag); }

    Font GetFont() const override
    {
        if constexpr (ControlWithFont<Control>)
            return m_control.GetFont();
        else
            return {};
    }
    void SetFont(const Font& font) override
    {
        if constexpr (ControlWithFont<Control>)
            m_control.SetFont(font);
    }

    void* Object() override { return &m_control; }

private:
    std::optional<Forwarder> m_forwarder; // outlives the control, which may raise while dying
    Control m_control;
};

using HostedControlFactory = std::unique_ptr<HostedControl> (*)(Surface&, ControlSite&, EventRaiser*);

template <class Control, class Forwarder>
std::unique_ptr<HostedControl> CreateHostedControl(Surface& surface, ControlSite& site, EventRaiser* events)
{
    return std::make_unique<HostedControlOf<Control, Forwarder>>(surface, site, events);
}

} // namespace tolva::win32
