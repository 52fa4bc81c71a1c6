// TolvaInput's drop-downs as real windows: one pop-up window of each kind for the thread, owned
// by the form, out of the task bar, active while it shows, placed by the control, closed by a
// click elsewhere (which accepts) or by Esc (which restores), and gone with the last control.
#include "controls/input/tolva_input_enums.h"
#include "platform/win32/com/control_class.h"
#include "tests/gui/atl_hosted.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tolva::win32 {
extern const ControlClass TolvaInputClass;
namespace {

// The library's top-level windows on this thread: its pop-ups.
std::vector<HWND> PopupWindows()
{
    return test::ThreadWindowsOf(L"TolvaKitSurface");
}

HWND VisiblePopup()
{
    const std::vector<HWND> shown = test::ThreadWindowsOf(L"TolvaKitSurface", true);
    return shown.empty() ? nullptr : shown.front();
}

HWND EditOf(HWND control)
{
    return FindWindowExW(control, nullptr, L"Edit", nullptr);
}

std::wstring TextOf(HWND control)
{
    return test::TextOf(EditOf(control));
}

// A left press and release on the drop-down button, 4 pixels from the control's right edge.
void PressButton(HWND control)
{
    RECT client;
    GetClientRect(control, &client);
    const LPARAM at = MAKELPARAM(client.right - 4, client.bottom / 2);
    SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, at);
    SendMessageW(control, WM_LBUTTONUP, 0, at);
}

void PressF4(HWND control)
{
    SendMessageW(EditOf(control), WM_KEYDOWN, VK_F4, 1);
}

// A key as the keyboard gives it to the window with the focus.
void Type(UINT key, wchar_t character)
{
    HWND focus = GetFocus();
    SendMessageW(focus, WM_KEYDOWN, key, 1);
    if (character)
        SendMessageW(focus, WM_CHAR, WPARAM(character), 1);
}

// Where the control puts its pop-up: below it from its client area's left edge, or above it and
// right-aligned with it where the screen ends.
struct Placement {
    LONG left, top, right, bottom;
};
Placement PopupRect(HWND popup)
{
    RECT rect;
    GetWindowRect(popup, &rect);
    return { rect.left, rect.top, rect.right, rect.bottom };
}

class PopupWindowTest : public testing::Test {
protected:
    HWND Form() { return hosted->Form().Window(); }
    HWND Control(const char16_t* name) { return hosted->Window(name); }

    std::unique_ptr<test::HostedForm> hosted = std::make_unique<test::HostedForm>(test::EveryControlForm);
};

// Opened by a press or by F4, each pop-up is a tool window owned by the form, active, below the
// control; Esc gives the activation and the focus back.
TEST_F(PopupWindowTest, OpensOwnedByTheFormActiveAndBelowTheControl)
{
    for (const char16_t* name : { u"txtDate", u"txtAmount", u"cboItem" }) {
        for (bool byKey : { false, true }) {
            SCOPED_TRACE(ToUtf8(name) + (byKey ? " F4" : " press"));
            HWND control = Control(name);
            byKey ? PressF4(control) : PressButton(control);
            HWND popup = VisiblePopup();
            ASSERT_TRUE(popup);
            EXPECT_EQ(GetWindow(popup, GW_OWNER), Form());
            EXPECT_TRUE(GetWindowLongW(popup, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
            EXPECT_TRUE(GetWindowLongW(popup, GWL_STYLE) & WS_POPUP);
            EXPECT_EQ(GetActiveWindow(), popup);
            POINT origin { 0, 0 };
            ClientToScreen(control, &origin);
            RECT window;
            GetWindowRect(control, &window);
            const Placement at = PopupRect(popup);
            EXPECT_EQ(at.left, origin.x);
            EXPECT_EQ(at.top, origin.y + (window.bottom - window.top));
            Type(VK_ESCAPE, 27);
            EXPECT_FALSE(IsWindowVisible(popup));
            EXPECT_EQ(GetActiveWindow(), Form());
            EXPECT_EQ(GetFocus(), EditOf(control));
        }
    }
}

// Near the screen's right and bottom edges the pop-up opens above the control, right-aligned.
TEST_F(PopupWindowTest, NearTheScreensEdgesOpensAboveAndRightAligned)
{
    HWND control = Control(u"txtDate");
    RECT window;
    GetWindowRect(control, &window);
    RECT form;
    GetWindowRect(Form(), &form);
    const int right = GetSystemMetrics(SM_CXSCREEN), bottom = GetSystemMetrics(SM_CYSCREEN);
    SetWindowPos(Form(), nullptr, form.left + right - 5 - window.right, form.top + bottom - 5 - window.bottom, 0, 0,
        SWP_NOSIZE | SWP_NOZORDER);
    PressButton(control);
    HWND popup = VisiblePopup();
    ASSERT_TRUE(popup);
    POINT origin { 0, 0 };
    ClientToScreen(control, &origin);
    GetWindowRect(control, &window);
    const Placement at = PopupRect(popup);
    EXPECT_EQ(at.right, origin.x + (window.right - window.left));
    EXPECT_EQ(at.bottom, origin.y);
    Type(VK_ESCAPE, 27);
}

// The calculator: what was typed stays when the form is clicked (formatted), and goes on Esc.
TEST_F(PopupWindowTest, AClickOnTheFormAcceptsAndEscRestores)
{
    HWND control = Control(u"txtAmount");
    PressButton(control);
    Type(0, '5');
    EXPECT_EQ(TextOf(control), L"5");
    SetActiveWindow(Form()); // as a click on the form activates it
    EXPECT_FALSE(VisiblePopup());
    EXPECT_EQ(TextOf(control), L"5.00");

    PressButton(control);
    Type(0, '7'); // after the release of 5, still to be played
    EXPECT_TRUE(test::PumpUntil([&] { return TextOf(control) == L"7"; }));
    Type(VK_ESCAPE, 27);
    EXPECT_EQ(TextOf(control), L"5.00");
    EXPECT_FALSE(VisiblePopup());
}

// A day chosen with the mouse becomes the text and closes the calendar.
TEST_F(PopupWindowTest, ADayChosenWithTheMouseBecomesTheText)
{
    HWND control = Control(u"txtDate");
    PressButton(control);
    HWND popup = VisiblePopup();
    ASSERT_TRUE(popup);
    // March 2026 starts on a Sunday: cell 19 (fourth row, Friday) is the 20th.
    POINT cell { 3 + 5 * 24 + 12, 39 + 2 * 17 + 8 };
    HWND day = ChildWindowFromPointEx(popup, cell, CWP_SKIPINVISIBLE);
    ASSERT_TRUE(day && day != popup);
    MapWindowPoints(popup, day, &cell, 1);
    SendMessageW(day, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(cell.x, cell.y));
    SendMessageW(day, WM_LBUTTONUP, 0, MAKELPARAM(cell.x, cell.y));
    EXPECT_EQ(TextOf(control), L"03/20/2026");
    EXPECT_FALSE(VisiblePopup());
    EXPECT_EQ(GetActiveWindow(), Form());
}

// One window of each kind, shared; the set goes with the last control, and the thread uses no
// processor time while a pop-up waits.
TEST_F(PopupWindowTest, OneWindowOfEachKindIdleWhileOpenAndNoneLeftAfterwards)
{
    for (const char16_t* name : { u"txtDate", u"txtAmount", u"cboItem", u"txtDate" }) {
        PressButton(Control(name));
        ASSERT_TRUE(VisiblePopup());
    }
    EXPECT_EQ(PopupWindows().size(), 3u);

    FILETIME created, exited, kernelBefore, userBefore, kernelAfter, userAfter;
    GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernelBefore, &userBefore);
    test::PumpFor(500);
    GetProcessTimes(GetCurrentProcess(), &created, &exited, &kernelAfter, &userAfter);
    const auto ticks = [](const FILETIME& t) { return (ULONGLONG(t.dwHighDateTime) << 32) | t.dwLowDateTime; };
    const ULONGLONG used = ticks(kernelAfter) - ticks(kernelBefore) + ticks(userAfter) - ticks(userBefore);
    EXPECT_LT(used, 150u * 10000u); // 100-ns units: well under the 500 ms waited
    EXPECT_TRUE(VisiblePopup());

    hosted.reset();
    EXPECT_TRUE(PopupWindows().empty());
}

// In Wine's ATL container, with a plain window as the form.
class AtlPopupTest : public test::AtlHosted {
protected:
    void SetUp() override
    {
        Host(L"TolvaKit.TolvaInput", *TolvaInputClass.eventIid, 10, 20, 200, 21);
        test::Put(dispatch.Get(), L"Style", test::Long(tkInputStyles::tkCalculator));
        test::Put(dispatch.Get(), L"Text", test::Text(L"12"));
    }
};

TEST_F(AtlPopupTest, ThePressAndF4OpenTheCalculatorOwnedByTheForm)
{
    for (bool byKey : { false, true }) {
        byKey ? PressF4(window) : PressButton(window);
        HWND popup = VisiblePopup();
        ASSERT_TRUE(popup);
        EXPECT_EQ(GetWindow(popup, GW_OWNER), form.Get());
        EXPECT_EQ(GetActiveWindow(), popup);
        Type(0, '+');
        Type(0, '3');
        Type(VK_RETURN, 13);
        test::PumpUntil([] { return !VisiblePopup(); });
        EXPECT_EQ(TextOf(window), byKey ? L"18" : L"15");
    }
    DestroyWindow(container);
    container = nullptr;
    control.Reset();
    dispatch.Reset();
    EXPECT_TRUE(PopupWindows().empty());
}

} // namespace
} // namespace tolva::win32
