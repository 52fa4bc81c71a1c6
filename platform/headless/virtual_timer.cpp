#include "platform/headless/virtual_timer.h"
#include "platform/headless/virtual_clock.h"

namespace tolva::headless {

VirtualTimer::VirtualTimer(VirtualClock& clock)
    : m_clock(&clock)
{
    clock.Add(this);
}

VirtualTimer::~VirtualTimer()
{
    if (m_clock)
        m_clock->Remove(this);
}

void VirtualTimer::SetInterval(int32_t milliseconds)
{
    m_interval = milliseconds;
    Restart();
}

void VirtualTimer::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    Restart();
}

void VirtualTimer::Restart()
{
    if (m_clock && m_enabled && m_interval > 0)
        m_due = m_clock->Now() + m_interval;
    else
        m_due.reset();
}

void VirtualTimer::Tick()
{
    // The next tick is scheduled first, so that the handler's own changes (a new interval,
    // disabling) win, and a copy of the handler runs, since it may replace or destroy itself.
    Restart();
    if (std::function<void()> handler = m_handler)
        handler();
}

} // namespace tolva::headless
