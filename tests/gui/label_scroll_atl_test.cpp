// TolvaLabel and TolvaScroll in Wine's ATL container (the AtlAxWin window class of atl.dll),
// created from their ProgIDs: in place with their parts as child windows, driven with mouse
// messages, raising their events to a sink of ours.
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace tolva::win32::test {
namespace {

const IID LabelEvents = { 0x6A158B5C, 0x7984, 0x4D84, { 0x90, 0xD9, 0xD0, 0x84, 0x90, 0x7F, 0x23, 0x90 } };
const IID ScrollEvents = { 0xF18805C8, 0xD85C, 0x4F36, { 0x9A, 0x92, 0x7A, 0xDF, 0xB5, 0xCF, 0xC3, 0xF4 } };
constexpr DISPID ClickId = 1, MouseDownId = 3, MouseMoveId = 4, MouseUpId = 5, ChangeId = 6;

class AtlLabel : public AtlHosted {
protected:
    void SetUp() override { Host(L"TolvaKit.TolvaLabel", LabelEvents, 10, 10, 120, 20); }
};

TEST_F(AtlLabel, ShowsItsHotBackgroundUnderTheMouseAndClicks)
{
    ASSERT_EQ(Put(dispatch.Get(), L"BackColor", Long(0x203040)), S_OK);
    ASSERT_EQ(Put(dispatch.Get(), L"BackColorActive", Long(0x00C0FF)), S_OK);
    UpdateWindow(window);
    EXPECT_EQ(Pixels::OfWindow(window).At(2, 2), 0x203040u);
    SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(30, 10));
    EXPECT_EQ(Pixels::OfWindow(window).At(2, 2), 0x00C0FFu);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 10));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(30, 10));
    EXPECT_EQ(IdsWithout(MouseMoveId), (std::vector<DISPID> { MouseDownId, ClickId, MouseUpId }));
    EXPECT_EQ(Pixels::OfWindow(window).At(2, 2), 0x203040u); // the release clears the hot look
}

class AtlScroll : public AtlHosted {
protected:
    void SetUp() override
    {
        Host(L"TolvaKit.TolvaScroll", ScrollEvents, 10, 10, 17, 200);
        // The parts: arrow buttons at the top and the bottom, the slider between them.
        for (HWND child : Children(window)) {
            RECT r = PlaceIn(child, window);
            if (r.top == 0)
                up = child;
            else if (r.bottom == 200)
                down = child;
            else
                slider = child;
        }
        ASSERT_TRUE(up && down && slider);
    }

    HWND up = nullptr;
    HWND down = nullptr;
    HWND slider = nullptr;
};

TEST_F(AtlScroll, ItsPartsAreChildWindowsAsWideAsTheBar)
{
    EXPECT_EQ(Children(window).size(), 3u);
    for (HWND part : { up, down, slider }) {
        RECT r = PlaceIn(part, window);
        EXPECT_EQ(r.left, 0);
        EXPECT_EQ(r.right, 17);
    }
    EXPECT_EQ(PlaceIn(up, window).bottom, 17); // 255 twips
    EXPECT_EQ(PlaceIn(down, window).top, 200 - 17);
    EXPECT_EQ(PlaceIn(slider, window).top, 17); // Value = Min
}

TEST_F(AtlScroll, AssignmentsMoveTheSliderAndRaiseChange)
{
    ASSERT_EQ(Put(dispatch.Get(), L"Value", Long(100)), S_OK);
    EXPECT_EQ(PlaceIn(slider, window).bottom, 200 - 17);
    ASSERT_EQ(Put(dispatch.Get(), L"Value", Long(100)), S_OK);
    EXPECT_EQ(sink->Ids(), (std::vector<DISPID> { ChangeId, ChangeId }));
}

TEST_F(AtlScroll, HoldingTheDownArrowStepsThenRepeatsUntilReleased)
{
    SendMessageW(down, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(8, 8));
    EXPECT_EQ(Read(L"Value"), 2);
    EXPECT_EQ(Count(ChangeId), 1u);
    EXPECT_TRUE(PumpUntil([&] { return Read(L"Value") >= 4; }, 5000));
    SendMessageW(down, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
    const LONG released = Read(L"Value");
    EXPECT_EQ(Count(ChangeId), size_t(released - 1)); // one Change per step
    PumpFor(150);
    EXPECT_EQ(Read(L"Value"), released);
    EXPECT_GT(PlaceIn(slider, window).top, 17);
}

} // namespace
} // namespace tolva::win32::test
