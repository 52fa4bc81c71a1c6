#pragma once
#include <cstdint>
#include <vector>

namespace tolva::headless {

class VirtualTimer;

// Test time: nothing happens until Advance moves the clock, and then every tick that falls due
// runs in time order, timers due at the same moment in the order they were created. Timers
// unregister themselves when destroyed, also from inside a tick.
class VirtualClock {
public:
    VirtualClock() = default;
    ~VirtualClock();
    VirtualClock(const VirtualClock&) = delete;
    VirtualClock& operator=(const VirtualClock&) = delete;

    int64_t Now() const { return m_now; } // milliseconds since the clock was made

    // Runs every tick due up to Now() + milliseconds. A tick handler's error propagates to the
    // caller, the clock then standing at that tick.
    void Advance(int64_t milliseconds);

private:
    friend class VirtualTimer;
    void Add(VirtualTimer* timer) { m_timers.push_back(timer); }
    void Remove(VirtualTimer* timer);
    VirtualTimer* NextDue(int64_t until) const;

    int64_t m_now = 0;
    std::vector<VirtualTimer*> m_timers; // in creation order
};

} // namespace tolva::headless
