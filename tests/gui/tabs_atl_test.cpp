// TolvaTabs in Wine's ATL container (the AtlAxWin window class of atl.dll), created from its
// ProgID: a press on a tab selects and draws it, a sink that sets rCancel takes it back, and the
// access keys reach it through IOleControl as a container hands them over.
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

const IID TabsEvents = { 0xAFB3CA7E, 0x8994, 0x41AF, { 0xA3, 0x4B, 0xC6, 0x08, 0xF2, 0x6F, 0x0A, 0x99 } };
constexpr DISPID MouseDownId = 6, ChangeId = 9;
constexpr uint32_t Inactive = 0xCEDBDE;

class AtlTabs : public AtlHosted {
protected:
    void SetUp() override
    {
        Host(L"TolvaKit.TolvaTabs", TabsEvents, 10, 10, 300, 100);
        for (const wchar_t* caption : { L"&General", L"&Accounts", L"&Reports" }) {
            OleVariant result;
            ASSERT_EQ(
                Call(dispatch.Get(), IdOf(dispatch.Get(), L"AddItem"), DISPATCH_METHOD, { Text(caption) }, result),
                S_OK);
        }
        ASSERT_EQ(Put(dispatch.Get(), L"SelectedItem", Long(1)), S_OK);
    }

    // The inside of tab n (from 1), left of its caption, which starts 6 pixels in: tabs are 1700
    // twips with a gap of 75.
    uint32_t TabFill(int n) { return Pixels::OfWindow(window).At((n - 1) * 118 + 3, 5); }

    const uint32_t face = GetSysColor(COLOR_BTNFACE) & 0xFFFFFF;
};

TEST_F(AtlTabs, APressOnATabSelectsAndDrawsIt)
{
    EXPECT_EQ(TabFill(1), face);
    EXPECT_EQ(TabFill(2), Inactive);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 5));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(150, 5));
    EXPECT_EQ(Read(L"SelectedItem"), 2);
    EXPECT_EQ(TabFill(1), Inactive);
    EXPECT_EQ(TabFill(2), face);
    EXPECT_EQ(Count(ChangeId), 2u); // the first from SetUp
    EXPECT_EQ(Count(MouseDownId), 1u);
}

TEST_F(AtlTabs, ASinkThatSetsRCancelKeepsTheOldTab)
{
    sink->OnEvent([](DISPID id, const std::vector<VARIANT*>& arguments) {
        if (id == ChangeId)
            *V_BOOLREF(arguments[0]) = VARIANT_TRUE;
    });
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(250, 5));
    EXPECT_EQ(Read(L"SelectedItem"), 1);
    EXPECT_EQ(TabFill(1), face);
    EXPECT_EQ(TabFill(3), Inactive);
}

TEST_F(AtlTabs, AccessKeysReachItThroughIOleControl)
{
    auto ole = control.As<IOleControl>(IID_IOleControl);
    ASSERT_TRUE(ole);
    CONTROLINFO info {};
    info.cb = sizeof info;
    ASSERT_EQ(ole->GetControlInfo(&info), S_OK);
    ASSERT_EQ(info.cAccel, 3);
    std::vector<ACCEL> keys(3);
    CopyAcceleratorTableW(info.hAccel, keys.data(), 3);
    EXPECT_EQ(std::vector<WORD>({ keys[0].key, keys[1].key, keys[2].key }), std::vector<WORD>({ 'G', 'A', 'R' }));

    MSG alt { window, WM_SYSKEYDOWN, 'R', 0x20000000, 0, {} };
    ASSERT_EQ(ole->OnMnemonic(&alt), S_OK);
    EXPECT_EQ(Read(L"SelectedItem"), 3);
    EXPECT_EQ(TabFill(3), face);
}

} // namespace
} // namespace tolva::win32::test
