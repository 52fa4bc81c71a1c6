#include "platform/win32/window/window_timer.h"
#include "tests/gui/gui_support.h"
#include <gtest/gtest.h>
#include <memory>

namespace tolva::win32 {
namespace {

TEST(WindowTimer, TicksThroughTheMessageLoopWhileEnabled)
{
    WindowTimer timer;
    int ticks = 0;
    timer.SetTickHandler([&] { ++ticks; });
    timer.SetInterval(10);
    timer.SetEnabled(true);
    EXPECT_TRUE(test::PumpUntil([&] { return ticks >= 3; }));
    timer.SetEnabled(false);
    const int stopped = ticks;
    test::PumpFor(60);
    EXPECT_EQ(ticks, stopped);
}

TEST(WindowTimer, DoesNotRunWithoutAPositiveInterval)
{
    WindowTimer timer;
    int ticks = 0;
    timer.SetTickHandler([&] { ++ticks; });
    timer.SetEnabled(true);
    test::PumpFor(40);
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(timer.Enabled());
    timer.SetInterval(10);
    EXPECT_TRUE(test::PumpUntil([&] { return ticks > 0; }));
}

TEST(WindowTimer, AHandlerMayDestroyItsOwnTimer)
{
    auto timer = std::make_unique<WindowTimer>();
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

TEST(WindowTimer, KeepsTimersApart)
{
    WindowTimer fast;
    WindowTimer slow;
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
}

} // namespace
} // namespace tolva::win32
