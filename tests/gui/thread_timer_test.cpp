#include "platform/win32/windowless/thread_timer.h"
#include "tests/gui/gui_support.h"
#include <gtest/gtest.h>
#include <memory>

namespace tolva::win32 {
namespace {

// Two timers of the thread, each ticking at its own interval through the message loop while it
// is enabled.
TEST(ThreadTimer, TicksThroughTheMessageLoopWhileEnabledEachAtItsInterval)
{
    ThreadTimer fast(nullptr);
    ThreadTimer slow(nullptr);
    int fastTicks = 0;
    int slowTicks = 0;
    fast.SetTickHandler([&] { ++fastTicks; });
    slow.SetTickHandler([&] { ++slowTicks; });
    fast.SetInterval(10);
    slow.SetInterval(10000);
    fast.SetEnabled(true);
    slow.SetEnabled(true);
    EXPECT_TRUE(test::PumpUntil([&] { return fastTicks >= 3; }));
    EXPECT_EQ(slowTicks, 0);
    fast.SetEnabled(false);
    const int stopped = fastTicks;
    test::PumpFor(60);
    EXPECT_EQ(fastTicks, stopped);
}

TEST(ThreadTimer, DoesNotRunWithoutAPositiveInterval)
{
    ThreadTimer timer(nullptr);
    int ticks = 0;
    timer.SetTickHandler([&] { ++ticks; });
    timer.SetEnabled(true);
    test::PumpFor(40);
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(timer.Enabled());
    timer.SetInterval(10);
    EXPECT_TRUE(test::PumpUntil([&] { return ticks > 0; }));
}

TEST(ThreadTimer, AHandlerMayDestroyItsOwnTimer)
{
    auto timer = std::make_unique<ThreadTimer>(nullptr);
    int ticks = 0;
    timer->SetTickHandler([&] {
        ++ticks;
        timer.reset();
    });
    timer->SetInterval(5);
    timer->SetEnabled(true);
    EXPECT_TRUE(test::PumpUntil([&] { return !timer; }));
    test::PumpFor(40);
    EXPECT_EQ(ticks, 1);
}

} // namespace
} // namespace tolva::win32
