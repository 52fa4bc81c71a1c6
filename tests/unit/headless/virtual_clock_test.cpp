#include "platform/headless/virtual_clock.h"
#include "platform/headless/virtual_timer.h"
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tolva::headless {
namespace {

class VirtualClockTest : public ::testing::Test {
protected:
    std::unique_ptr<VirtualTimer> Timer(const std::string& name, int32_t interval, bool enabled = true)
    {
        auto timer = std::make_unique<VirtualTimer>(clock);
        timer->SetTickHandler([this, name] { ticks.push_back(name + "@" + std::to_string(clock.Now())); });
        timer->SetInterval(interval);
        timer->SetEnabled(enabled);
        return timer;
    }

    VirtualClock clock;
    std::vector<std::string> ticks;
};

// Timers due together tick in creation order.
TEST_F(VirtualClockTest, FiresDueTicksInTimeOrder)
{
    auto slow = Timer("slow", 500);
    auto fast = Timer("fast", 200);
    clock.Advance(1000);
    EXPECT_EQ(ticks,
        (std::vector<std::string> {
            "fast@200", "fast@400", "slow@500", "fast@600", "fast@800", "slow@1000", "fast@1000" }));
    EXPECT_EQ(clock.Now(), 1000);
}

TEST_F(VirtualClockTest, NothingHappensUntilTimeIsAdvancedPastTheInterval)
{
    auto timer = Timer("t", 100);
    clock.Advance(99);
    EXPECT_TRUE(ticks.empty());
    clock.Advance(1);
    EXPECT_EQ(ticks, std::vector<std::string> { "t@100" });
    EXPECT_EQ(timer->DueTime(), 200);
}

TEST_F(VirtualClockTest, ADisabledTimerOrOneWithoutIntervalNeverTicks)
{
    auto off = Timer("off", 100, false);
    auto zero = Timer("zero", 0);
    clock.Advance(1000);
    EXPECT_TRUE(ticks.empty());
    EXPECT_FALSE(off->DueTime().has_value());
    EXPECT_FALSE(zero->DueTime().has_value());
}

// A handler may change the interval for the next tick (the first repeat after 500 ms, then every
// 30 ms) and stop its timer.
TEST_F(VirtualClockTest, AHandlerMayChangeTheIntervalAndStopItsTimer)
{
    VirtualTimer timer(clock);
    timer.SetTickHandler([&] {
        timer.SetInterval(30);
        ticks.push_back(std::to_string(clock.Now()));
        if (ticks.size() == 3)
            timer.SetEnabled(false);
    });
    timer.SetInterval(500);
    timer.SetEnabled(true);
    clock.Advance(1000);
    EXPECT_EQ(ticks, (std::vector<std::string> { "500", "530", "560" }));
}

TEST_F(VirtualClockTest, AHandlerMayDestroyItsTimerAndOthers)
{
    auto first = Timer("first", 100);
    auto second = Timer("second", 100);
    first->SetTickHandler([&] {
        ticks.push_back("first");
        second.reset();
        first.reset();
    });
    clock.Advance(300);
    EXPECT_EQ(ticks, std::vector<std::string> { "first" });
}

TEST_F(VirtualClockTest, ChangingIntervalOrEnabledRestartsTheCountdown)
{
    auto timer = Timer("t", 100);
    clock.Advance(80);
    timer->SetInterval(100);
    clock.Advance(80);
    EXPECT_TRUE(ticks.empty());
    timer->SetEnabled(true);
    clock.Advance(99);
    EXPECT_TRUE(ticks.empty());
    clock.Advance(1);
    EXPECT_EQ(ticks, std::vector<std::string> { "t@260" });
}

TEST_F(VirtualClockTest, AHandlersErrorStopsTheClockAtItsTick)
{
    VirtualTimer timer(clock);
    timer.SetTickHandler([] { throw std::runtime_error("overflow"); });
    timer.SetInterval(40);
    timer.SetEnabled(true);
    EXPECT_THROW(clock.Advance(100), std::runtime_error);
    EXPECT_EQ(clock.Now(), 40);
    EXPECT_EQ(timer.DueTime(), 80);
}

TEST_F(VirtualClockTest, ATimerOutlivingItsClockIsHarmless)
{
    auto clockFirst = std::make_unique<VirtualClock>();
    VirtualTimer timer(*clockFirst);
    clockFirst.reset();
    timer.SetInterval(10);
    timer.SetEnabled(true);
    EXPECT_FALSE(timer.DueTime().has_value());
}

} // namespace
} // namespace tolva::headless
