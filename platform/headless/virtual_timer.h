#pragma once
#include "core/timer.h"
#include <optional>

namespace tolva::headless {

class VirtualClock;

// A timer driven by a virtual clock. It runs while enabled with a positive interval; every
// change of the interval or of Enabled starts the countdown afresh, as the window timers do,
// and each tick schedules the next one with the interval read after the handler ran.
class VirtualTimer final : public Timer {
public:
    explicit VirtualTimer(VirtualClock& clock);
    ~VirtualTimer() override;
    VirtualTimer(const VirtualTimer&) = delete;
    VirtualTimer& operator=(const VirtualTimer&) = delete;

    void SetInterval(int32_t milliseconds) override;
    int32_t Interval() const override { return m_interval; }
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return m_enabled; }
    void SetTickHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

    // The clock time of the next tick, if the timer runs.
    std::optional<int64_t> DueTime() const { return m_due; }

private:
    friend class VirtualClock;
    void Restart();
    void Tick();

    VirtualClock* m_clock;
    int32_t m_interval = 0;
    bool m_enabled = false;
    std::optional<int64_t> m_due;
    std::function<void()> m_handler;
};

} // namespace tolva::headless
