#include "platform/headless/virtual_clock.h"
#include "platform/headless/virtual_timer.h"
#include <algorithm>

namespace tolva::headless {

VirtualClock::~VirtualClock()
{
    for (VirtualTimer* timer : m_timers)
        timer->m_clock = nullptr;
}

void VirtualClock::Remove(VirtualTimer* timer)
{
    std::erase(m_timers, timer);
}

VirtualTimer* VirtualClock::NextDue(int64_t until) const
{
    VirtualTimer* next = nullptr;
    for (VirtualTimer* timer : m_timers) {
        if (timer->m_due && *timer->m_due <= until && (!next || *timer->m_due < *next->m_due))
            next = timer;
    }
    return next;
}

void VirtualClock::Advance(int64_t milliseconds)
{
    const int64_t until = m_now + std::max<int64_t>(0, milliseconds);
    // The timer is looked up afresh after every tick: a handler may create, stop or destroy
    // timers, its own included.
    while (VirtualTimer* timer = NextDue(until)) {
        m_now = *timer->m_due;
        timer->Tick();
    }
    m_now = until;
}

} // namespace tolva::headless
