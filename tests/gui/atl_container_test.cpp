#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/command_object.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::Pixels;

constexpr uint32_t Black = 0x000000;
constexpr uint32_t Normal = 0xCEDBDE;
constexpr uint32_t Hot = 0xDEE7EF;
constexpr DISPID ClickId = 1, MouseDownId = 6, MouseUpId = 8;

// A TolvaCommand in Wine's ATL container, created from its ProgID as a 100 x 30 pixel child of
// a form, with our own sink advised on its events.
class AtlContainer : public test::AtlHosted {
protected:
    void SetUp() override { Host(L"TolvaKit.TolvaCommand", *TolvaCommandClass.eventIid, 10, 20, 100, 30); }

    void Send(UINT message, WPARAM wParam, int x, int y) { SendMessageW(window, message, wParam, MAKELPARAM(x, y)); }
};

TEST_F(AtlContainer, ShowsTheControlInPlaceAtTheContainersSize)
{
    wchar_t className[64] = {};
    GetClassNameW(window, className, 64);
    EXPECT_STREQ(className, L"TolvaKitSurface");
    RECT client;
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, 100);
    EXPECT_EQ(client.bottom, 30);
    Pixels look = Pixels::OfWindow(window);
    EXPECT_EQ(look.At(0, 0), Black);
    EXPECT_EQ(look.At(99, 29), Black);
    EXPECT_EQ(look.At(2, 2), Normal);
}

TEST_F(AtlContainer, RaisesMouseDownClickAndMouseUp)
{
    Send(WM_MOUSEMOVE, 0, 40, 10);
    EXPECT_EQ(Pixels::OfWindow(window).At(2, 2), Hot);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, 40, 10);
    Send(WM_LBUTTONUP, 0, 40, 10);
    std::vector<DISPID> ids;
    for (DISPID id : sink->Ids())
        if (id != 7) // MouseMove
            ids.push_back(id);
    EXPECT_EQ(ids, (std::vector<DISPID> { MouseDownId, ClickId, MouseUpId }));
    const auto& down = sink->Events()[1];
    ASSERT_EQ(down.id, MouseDownId);
    EXPECT_EQ(down.values, (std::vector<double> { 1, 0, 600, 150 }));
}

TEST_F(AtlContainer, TheControlFollowsTheContainersSize)
{
    MoveWindow(container, 10, 20, 150, 40, TRUE);
    RECT client;
    GetClientRect(window, &client);
    EXPECT_EQ(client.right, 150);
    EXPECT_EQ(client.bottom, 40);
    UpdateWindow(window);
    Pixels look = Pixels::OfWindow(window);
    EXPECT_EQ(look.At(149, 39), Black);
    EXPECT_EQ(look.At(140, 30), Normal);
}

TEST_F(AtlContainer, EnterClicksTheFocusedButton)
{
    SetFocus(window);
    EXPECT_EQ(Pixels::OfWindow(window).At(3, 3), 0x808080u);
    Send(WM_KEYDOWN, VK_RETURN, 0, 0);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { ClickId, 3 }));
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
