#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include "host/form/form_writer.h"
#include "platform/win32/com/bstr.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>
#include <map>

namespace tolva::win32 {
namespace {

using test::HostedForm;
using test::Pixels;
using Lines = std::vector<std::string>;

constexpr uint32_t Black = 0x000000;
constexpr uint32_t Normal = 0xCEDBDE;

class HostFormTest : public testing::Test {
protected:
    HostedForm hosted { test::ButtonsForm };

    void Send(StringView control, UINT message, WPARAM wParam, int x = 0, int y = 0)
    {
        SendMessageW(hosted.Window(control), message, wParam, MAKELPARAM(x, y));
    }
    Pixels Look(StringView control) { return Pixels::OfWindow(hosted.Window(control)); }
};

TEST_F(HostFormTest, PutsEachControlInPlaceAtItsExtenderRectangle)
{
    HWND window = hosted.Window(u"cmdOK");
    ASSERT_TRUE(window);
    EXPECT_EQ(GetParent(window), hosted.Form().Window());
    const RECT rect = test::PlaceIn(window, hosted.Form().Window());
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(rect.right, 110);
    EXPECT_EQ(rect.bottom, 50);
    Pixels look = Look(u"cmdOK");
    EXPECT_EQ(look.At(0, 0), Black);
    EXPECT_EQ(look.At(2, 2), Normal);
}

TEST_F(HostFormTest, FocusesTheFirstControlInTabOrderAndMarksTheDefaultButton)
{
    EXPECT_EQ(GetFocus(), hosted.Window(u"cmdFirst"));
    EXPECT_EQ(Look(u"cmdFirst").At(3, 3), 0x808080u); // the focus mark
    EXPECT_EQ(Look(u"cmdMenu").At(1, 1), Black); // the default mark
    EXPECT_EQ(Look(u"cmdOK").At(1, 1), Normal);
}

TEST_F(HostFormTest, LogsTheEventsOfAClickWithTheirArguments)
{
    hosted.Take();
    Send(u"cmdOK", WM_LBUTTONDOWN, MK_LBUTTON, 50, 10);
    Send(u"cmdOK", WM_LBUTTONUP, 0, 50, 10);
    EXPECT_EQ(
        hosted.Take(), (Lines { "cmdOK_MouseDown 1, 0, 750, 150", "cmdOK_Click", "cmdOK_MouseUp 1, 0, 750, 150" }));
    EXPECT_EQ(GetFocus(), hosted.Window(u"cmdOK")); // a click takes the focus
}

// Alt+O anywhere on the form, as the message loop hands it over, clicks the button.
TEST_F(HostFormTest, TheAccessKeyClicksFromAnywhereOnTheForm)
{
    hosted.Take();
    MSG alt { hosted.Window(u"cmdFirst"), WM_SYSKEYDOWN, 'O', 0x20000000, 0, {} };
    EXPECT_TRUE(hosted.Form().PreTranslateMessage(alt));
    EXPECT_EQ(hosted.Take(), (Lines { "cmdOK_Click", "cmdOK_MouseUp 1, 0, 0, 0" }));
    MSG other { hosted.Window(u"cmdFirst"), WM_SYSKEYDOWN, 'Q', 0x20000000, 0, {} };
    EXPECT_FALSE(hosted.Form().PreTranslateMessage(other));
}

TEST_F(HostFormTest, TabMovesTheFocusInTabOrder)
{
    for (const char16_t* next : { u"cmdOK", u"cmdMenu", u"cmdFirst" }) {
        MSG tab { GetFocus(), WM_KEYDOWN, VK_TAB, 0, 0, {} };
        EXPECT_TRUE(hosted.Form().PreTranslateMessage(tab));
        EXPECT_EQ(GetFocus(), hosted.Window(next)) << ToUtf8(next);
    }
}

TEST_F(HostFormTest, AHiddenControlThatHadTheFocusStaysHiddenWhenTheFormGetsItBack)
{
    SetFocus(hosted.Window(u"cmdOK"));
    ASSERT_EQ(test::Put(hosted.Control(u"cmdOK").Extender(), L"Visible", test::Bool(false)), S_OK);
    SetFocus(hosted.Form().Window());
    EXPECT_FALSE(IsWindowVisible(hosted.Window(u"cmdOK")));
}

TEST_F(HostFormTest, TheMenuButtonOpensItsMenuAtItsBottomLeftCorner)
{
    RECT button;
    GetWindowRect(hosted.Window(u"cmdMenu"), &button);
    RECT menu {};
    test::ModalDriver driver([&] {
        HWND popup = FindWindowW(L"#32768", nullptr);
        if (!popup || !IsWindowVisible(popup))
            return false;
        GetWindowRect(popup, &menu);
        PostMessageW(popup, WM_KEYDOWN, VK_DOWN, 0);
        PostMessageW(popup, WM_KEYDOWN, VK_RETURN, 0);
        return true;
    });
    hosted.Take();
    Send(u"cmdMenu", WM_LBUTTONDOWN, MK_LBUTTON, 10, 10);
    Send(u"cmdMenu", WM_LBUTTONUP, 0, 10, 10);
    ASSERT_TRUE(driver.Done());
    EXPECT_EQ(menu.left, button.left);
    EXPECT_EQ(menu.top, button.bottom);
    EXPECT_EQ(hosted.Take(),
        (Lines { "cmdMenu_MouseDown 1, 0, 150, 150", "cmdMenu_Click", "frmTest.PopupMenu mnuFile, 3450, 750",
            "mnuFileOpen_Click", "cmdMenu_MouseUp 1, 0, 150, 150" }));
}

// The extender's Parent is the form: its hwnd, Controls(name) as a script calls it, and the
// Controls collection, which finds controls and menus by name or index and refuses others with
// the form's errors.
TEST_F(HostFormTest, TheParentFormAnswersHwndAndControls)
{
    OleVariant parent, hwnd, fileMenu, caption, controls, count;
    ASSERT_EQ(test::Get(hosted.Control(u"cmdOK").Extender(), L"Parent", parent), S_OK);
    IDispatch* form = V_DISPATCH(&parent.Get());
    ASSERT_EQ(test::Get(form, L"hwnd", hwnd), S_OK);
    EXPECT_EQ(HWND(intptr_t(test::AsLong(hwnd))), hosted.Form().Window());
    ASSERT_EQ(test::Call(form, test::IdOf(form, L"Controls"), DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                  { test::Text(L"MNUFILE") }, fileMenu),
        S_OK);
    ASSERT_EQ(test::Get(V_DISPATCH(&fileMenu.Get()), L"Caption", caption), S_OK);
    EXPECT_EQ(test::AsText(caption), L"&File");
    ASSERT_EQ(test::Get(form, L"Controls", controls), S_OK);
    IDispatch* collection = V_DISPATCH(&controls.Get());
    ASSERT_EQ(test::Get(collection, L"Count", count), S_OK);
    EXPECT_EQ(test::AsLong(count), 6);

    const Bstr first(u"CMDFIRST"), menu(u"cmdMenu"), none(u"cmdNone");
    VARIANT menuName = test::BorrowedText(menu.Get());
    VARIANT variable; // a script's variable holding the name
    V_VT(&variable) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&variable) = &menuName;
    struct Case {
        VARIANT key;
        const wchar_t* name; // the item found, or the error's description
        HRESULT scode = S_OK;
    };
    const Case cases[] = {
        { test::BorrowedText(first.Get()), L"cmdFirst" },
        { variable, L"cmdMenu" },
        { test::Double(0.4), L"cmdOK" },
        { test::Long(5), L"mnuFileExit" },
        { test::BorrowedText(none.Get()), L"Control 'cmdNone' not found", HRESULT(0x800A02DA) },
        { test::Long(6), L"Subscript out of range", HRESULT(0x800A0009) },
        { test::Short(-1), L"Subscript out of range", HRESULT(0x800A0009) },
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << ToUtf8(ViewOf(c.name)));
        OleVariant item, name;
        test::ExceptionInfo error;
        const HRESULT hr
            = test::Call(collection, DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, { c.key }, item, &error);
        if (c.scode == S_OK) {
            ASSERT_EQ(hr, S_OK);
            ASSERT_EQ(test::Get(V_DISPATCH(&item.Get()), L"Name", name), S_OK);
            EXPECT_EQ(test::AsText(name), c.name);
            continue;
        }
        EXPECT_EQ(hr, DISP_E_EXCEPTION);
        EXPECT_EQ(error.scode, c.scode);
        EXPECT_EQ(FromBstr(error.bstrDescription), FromWide(c.name));
    }
}

TEST_F(HostFormTest, TheExtenderPassesOtherNamesToTheControl)
{
    IDispatch* extender = hosted.Control(u"cmdOK").Extender();
    ASSERT_EQ(test::Put(extender, L"Caption", test::Text(L"Changed")), S_OK);
    OleVariant caption, width;
    test::Get(extender, L"Caption", caption);
    EXPECT_EQ(test::AsText(caption), L"Changed");
    ASSERT_EQ(test::Put(extender, L"Width", test::Long(3000)), S_OK);
    RECT rect;
    GetClientRect(hosted.Window(u"cmdOK"), &rect);
    EXPECT_EQ(rect.right, 200);
}

TEST_F(HostFormTest, AboutBoxShowsTheLibrarysDialogOwnedByTheForm)
{
    HWND owner = nullptr;
    test::ModalDriver driver([&] {
        HWND dialog = FindWindowW(L"#32770", L"About TolvaKit");
        if (!dialog)
            return false;
        owner = GetWindow(dialog, GW_OWNER);
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        return true;
    });
    OleVariant result;
    ASSERT_EQ(test::Call(hosted.Control(u"cmdOK").Extender(), -552 /* AboutBox */, DISPATCH_METHOD, {}, result), S_OK);
    EXPECT_TRUE(driver.Done());
    EXPECT_EQ(owner, hosted.Form().Window());
}

// Every property of the button away from its default, and the form's own keys. The font is one
// that Wine has under its own name at an exact pixel size: Wine's font objects report the font
// they realise, not the one asked for.
constexpr std::string_view FullForm = R"(VERSION 5.00
Begin VB.Form frmFull
   Caption         =   "Everything"
   ClientWidth     =   4000
   ClientHeight    =   2000
   Begin TolvaKit.TolvaCommand cmdAll
      Left            =   120
      Top             =   60
      Width           =   2000
      Height          =   600
      TabIndex        =   3
      Tag             =   "kept"
      Visible         =   0   'False
      BackColor       =   &H00102030&
      BackColorActive =   &H00405060&
      BackColorPushed =   &H00708090&
      ForeColorDisabled=   &H00A0B0C0&
      MenuName        =   "mnuPop"
      ForeColor       =   &H000000FF&
      Enabled         =   0   'False
      BeginProperty Font
         Name            =   "DejaVu Sans"
         Size            =   12
         Charset         =   0
         Weight          =   700
         Underline       =   -1  'True
         Italic          =   -1  'True
         Strikethrough   =   -1  'True
      EndProperty
      Caption         =   "A && &B ""quoted"""
      Style           =   1
      Alignment       =   1
   End
   Begin VB.Menu mnuPop
      Caption         =   "Pop"
      Visible         =   0   'False
      Begin VB.Menu mnuPopItem
         Caption         =   "&Item"
         Checked         =   -1  'True
         Enabled         =   0   'False
      End
   End
End
)";

std::map<std::u16string, Variant> Values(const FormObject& object)
{
    std::map<std::u16string, Variant> values;
    for (const FormProperty& property : object.properties)
        values[property.key] = property.value;
    return values;
}

TEST(HostFormSave, SaveAndReloadKeepEveryProperty)
{
    const FormObject original = FormReader::Read(FullForm);
    std::string firstSave;
    {
        HostedForm hosted(FullForm);
        firstSave = FormWriter::Write(hosted.Form().Save());
    }
    const FormObject saved = FormReader::Read(firstSave);
    ASSERT_EQ(saved.children.size(), 2u);
    EXPECT_EQ(Values(saved), Values(original));
    const auto savedValues = Values(saved.children[0]);
    const auto originalValues = Values(original.children[0]);
    for (const auto& [key, value] : originalValues)
        EXPECT_TRUE(savedValues.count(key) && savedValues.at(key) == value) << ToUtf8(key);
    EXPECT_EQ(savedValues.size(), originalValues.size());
    EXPECT_EQ(Values(saved.children[1].children[0]), Values(original.children[1].children[0]));
    // Loading what was saved and saving again changes nothing.
    HostedForm again(firstSave);
    EXPECT_EQ(FormWriter::Write(again.Form().Save()), firstSave);
}

struct Refused {
    const char* text;
    int line;
    const char* reason;
};

class HostFormRefuses : public testing::TestWithParam<Refused> { };

TEST_P(HostFormRefuses, WithTheLineAndTheReason)
{
    test::EventLogFile log;
    try {
        host::HostForm form(FormReader::Read(GetParam().text), log.Log());
        FAIL() << "accepted";
    } catch (const FormSyntaxError& error) {
        EXPECT_EQ(error.Line(), GetParam().line) << error.what();
        EXPECT_NE(error.Reason().find(GetParam().reason), std::string::npos) << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, HostFormRefuses,
    testing::Values(
        Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaNothing x\n End\nEnd\n", 2, "not a registered control" },
        Refused { "Begin VB.Form f\n Begin VB.CommandButton x\n End\nEnd\n", 2, "not supported" },
        Refused {
            "Begin VB.Form f\n Begin TolvaKit.TolvaCommand x\n  Left = \"far\"\n End\nEnd\n", 3, "must be a number" },
        Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaCommand x\n  Width = -5\n End\nEnd\n", 3, "out of range" },
        Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaCommand x\n  Begin VB.Menu m\n  End\n End\nEnd\n", 3,
            "cannot hold" },
        Refused { "Begin VB.Form f\n Begin VB.Menu m\n  Begin TolvaKit.TolvaCommand x\n  End\n End\nEnd\n", 3,
            "only VB.Menu" },
        Refused { "Begin VB.Form f\n ClientWidth = \"wide\"\nEnd\n", 2, "must be a number" },
        Refused { "Begin VB.Form f\n Begin TolvaKit.TolvaCommand x\n  Default = \"maybe\"\n End\nEnd\n", 3,
            "True or False" }));

} // namespace
} // namespace tolva::win32
