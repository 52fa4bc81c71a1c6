#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/command_object.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::Pixels;

constexpr uint32_t Black = 0x000000;
constexpr uint32_t Normal = 0xCEDBDE;

// A TolvaCommand in Wine's ATL container, created from its ProgID as a 100 x 30 pixel child of
// a form, with our own sink advised on its events.
class AtlContainer : public test::AtlHosted {
protected:
    void SetUp() override { Host(L"TolvaKit.TolvaCommand", *TolvaCommandClass.eventIid, 10, 20, 100, 30); }
};

TEST_F(AtlContainer, ShowsTheControlInPlaceAtTheContainersSizeAndFollowsIt)
{
    EXPECT_EQ(test::ClassOf(window), L"TolvaKitSurface");
    for (SIZE size : { SIZE { 100, 30 }, SIZE { 150, 40 } }) {
        MoveWindow(container, 10, 20, size.cx, size.cy, TRUE);
        UpdateWindow(window);
        RECT client;
        GetClientRect(window, &client);
        EXPECT_EQ(client.right, size.cx);
        EXPECT_EQ(client.bottom, size.cy);
        Pixels look = Pixels::OfWindow(window);
        EXPECT_EQ(look.At(0, 0), Black);
        EXPECT_EQ(look.At(size.cx - 1, size.cy - 1), Black);
        EXPECT_EQ(look.At(size.cx - 10, size.cy - 10), Normal);
    }
}

TEST_F(AtlContainer, ClosingTheContainerReleasesTheControl)
{
    DestroyWindow(std::exchange(container, nullptr));
    EXPECT_FALSE(IsWindow(window));
    // The container let go of its site: nothing fires any more, and the object is still usable.
    ASSERT_TRUE(control.As<IDispatch>(IID_IDispatch));
    EXPECT_TRUE(sink->Ids().empty());
}

} // namespace
} // namespace tolva::win32
