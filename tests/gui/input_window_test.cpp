// TolvaInput in Wine's ATL container: the text lives in a real EDIT window inside the control's,
// the control's key events reach the client before the box acts on them, and the box follows
// the control's properties.
#include "controls/input/tolva_input_enums.h"
#include "platform/win32/com/control_class.h"
#include "tests/gui/atl_hosted.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
extern const ControlClass TolvaInputClass;
namespace {

using test::Pixels;

constexpr DISPID ChangeId = 1, KeyDownId = 4, KeyPressId = 5;

// A 200 x 19 pixel input on a form, its EDIT found among the control's windows.
class InputWindow : public test::AtlHosted {
protected:
    void SetUp() override
    {
        Host(L"TolvaKit.TolvaInput", *TolvaInputClass.eventIid, 10, 20, 200, 19);
        edit = FindWindowExW(window, nullptr, L"Edit", nullptr);
        ASSERT_TRUE(edit);
        test::Put(dispatch.Get(), L"Text", test::Text(L""));
    }

    std::wstring Text()
    {
        OleVariant value;
        test::Get(dispatch.Get(), L"Text", value);
        return test::AsText(value);
    }
    void Type(const wchar_t* text)
    {
        for (const wchar_t* c = text; *c; ++c)
            SendMessageW(edit, WM_CHAR, WPARAM(*c), 1);
    }
    void Key(UINT key)
    {
        SendMessageW(edit, WM_KEYDOWN, key, 1);
        SendMessageW(edit, WM_KEYUP, key, 1 | (3u << 30));
    }

    HWND edit = nullptr;
};

TEST_F(InputWindow, TheEditFillsTheControlButForTheButton)
{
    RECT control, box;
    GetClientRect(window, &control);
    GetWindowRect(edit, &box);
    EXPECT_EQ(box.right - box.left, control.right);
    test::Put(dispatch.Get(), L"Style", test::Long(tkInputStyles::tkCombo));
    GetWindowRect(edit, &box);
    EXPECT_EQ(box.right - box.left, control.right - 12);
    EXPECT_EQ(box.bottom - box.top, control.bottom);
}

// The sink sees each character first: a KeyAscii set to 0 is not typed, a changed one is typed
// as changed; every change of the text is a Change event.
TEST_F(InputWindow, AHandlerDecidesWhatTheEditTypes)
{
    sink->OnEvent([](DISPID id, const std::vector<VARIANT*>& arguments) {
        if (id != KeyPressId)
            return;
        SHORT& key = *V_I2REF(arguments[0]);
        if (key == 'x')
            key = 0;
        else if (key == 'a')
            key = 'A';
    });
    Type(L"axbx");
    EXPECT_EQ(Text(), L"Ab");
    EXPECT_EQ(Count(KeyPressId), 4u);
    EXPECT_EQ(Count(ChangeId), 2u);
}

// A KeyCode set to 0 in KeyDown keeps the box from moving its caret.
TEST_F(InputWindow, AZeroedKeyCodeIsNotActedOn)
{
    Type(L"abc");
    sink->OnEvent([](DISPID id, const std::vector<VARIANT*>& arguments) {
        if (id == KeyDownId && *V_I2REF(arguments[0]) == VK_HOME)
            *V_I2REF(arguments[0]) = 0;
    });
    Key(VK_HOME);
    EXPECT_EQ(Read(L"SelStart"), 3);
    Key(VK_LEFT);
    EXPECT_EQ(Read(L"SelStart"), 2);
}

TEST_F(InputWindow, LockedAndMaxLengthLimitTheUserNotTheCode)
{
    test::Put(dispatch.Get(), L"MaxLength", test::Long(3));
    Type(L"12345");
    EXPECT_EQ(Text(), L"123");
    test::Put(dispatch.Get(), L"Locked", test::Bool(true));
    EXPECT_TRUE(GetWindowLongW(edit, GWL_STYLE) & ES_READONLY);
    SendMessageW(edit, WM_CHAR, WPARAM(8), 1);
    EXPECT_EQ(Text(), L"123");
    test::Put(dispatch.Get(), L"Text", test::Text(L"longer than three"));
    EXPECT_EQ(Text(), L"longer than three");
}

TEST_F(InputWindow, SelectionPropertiesAreTheEdits)
{
    test::Put(dispatch.Get(), L"Text", test::Text(L"hello world"));
    test::Put(dispatch.Get(), L"SelStart", test::Long(6));
    test::Put(dispatch.Get(), L"SelLength", test::Long(5));
    DWORD start = 0, end = 0;
    SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 6u);
    EXPECT_EQ(end, 11u);
    test::Put(dispatch.Get(), L"SelText", test::Text(L"there"));
    EXPECT_EQ(Text(), L"hello there");
    Key(VK_HOME);
    SendMessageW(edit, WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(Read(L"SelStart"), 1);
}

TEST_F(InputWindow, TheEditShowsTheControlsColours)
{
    test::Put(dispatch.Get(), L"BackColor", test::Long(0x00FFFF));
    UpdateWindow(edit);
    Pixels look = Pixels::OfWindow(edit);
    EXPECT_EQ(look.At(look.Width() - 2, look.Height() - 2), 0x00FFFFu);
}

// Activating the control puts the focus into its text box.
TEST_F(InputWindow, TheFocusGoesToTheEdit)
{
    SetFocus(window);
    EXPECT_EQ(GetFocus(), edit);
    SendMessageW(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(edit, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(GetFocus(), edit);
}

} // namespace
} // namespace tolva::win32
