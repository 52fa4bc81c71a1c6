#include "host/form/form_writer.h"
#include "host/win32/form_designer.h"
#include "host/win32/property_frame.h"
#include "tests/gui/gui_support.h"
#include "tests/gui/hosted_form.h"
#include "tests/win32/support/dispatch_helpers.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;

constexpr std::string_view Ledger = R"(Begin VB.Form frmLedger
   Caption         =   "Ledger"
   ClientWidth     =   4500
   ClientHeight    =   1500
   Begin TolvaKit.TolvaCommand cmdPost
      Left            =   150
      Top             =   300
      Width           =   1500
      Height          =   450
      Caption         =   "Post"
   End
   Begin TolvaKit.TolvaCommand cmdUndo
      Left            =   1800
      Top             =   300
      Width           =   1500
      Height          =   450
      Caption         =   "Undo"
   End
End
)";

std::wstring TitleOf(HWND window)
{
    wchar_t text[128] = {};
    GetWindowTextW(window, text, 128);
    return text;
}

MSG Message(HWND window, UINT message, WPARAM wParam = 0)
{
    return MSG { window, message, wParam, MAKELPARAM(5, 5), GetTickCount(), {} };
}

// Design mode: a press selects a control without reaching it, F4 opens the pages of the
// selection, an applied edit makes the title dirty until the form is saved, and the saved form
// opens in run mode with the edit.
TEST(FormDesigner, EditsThroughThePagesSavesAndReloads)
{
    std::string saved;
    HostedForm designed(Ledger, false);
    host::FormDesigner designer(designed.Form(), [&] {
        saved = FormWriter::Write(designed.Form().Save());
        return true;
    });
    HWND form = designed.Form().Window();
    EXPECT_EQ(TitleOf(form), L"Ledger [design]");

    EXPECT_TRUE(designer.PreTranslateMessage(Message(designed.Window(u"cmdUndo"), WM_LBUTTONDOWN)));
    EXPECT_TRUE(designer.PreTranslateMessage(Message(designed.Window(u"cmdUndo"), WM_LBUTTONUP)));
    ASSERT_EQ(designer.Selection().size(), 1u);
    EXPECT_EQ(designer.Selection().front()->Name(), u"cmdUndo");
    EXPECT_TRUE(designed.Take().empty()); // no Click reached the button
    designer.Select(&designed.Control(u"cmdPost"), false);

    test::ModalDriver driver([&] {
        HWND frame = FindWindowW(host::PropertyFrame::WindowClass, nullptr);
        if (!frame)
            return false;
        std::vector<HWND> edits;
        for (HWND child : test::ChildWindows(frame)) {
            wchar_t name[16] = {};
            GetClassNameW(child, name, 16);
            if (std::wstring_view(name) == L"Edit")
                edits.push_back(child);
        }
        for (HWND candidate : edits) {
            wchar_t text[32] = {};
            GetWindowTextW(candidate, text, 32);
            if (std::wstring_view(text) == L"Post") {
                SendMessageW(candidate, EM_SETSEL, 0, -1);
                for (wchar_t c : std::wstring_view(L"&Pay"))
                    SendMessageW(candidate, WM_CHAR, WPARAM(c), 1);
            }
        }
        PostMessageW(frame, WM_COMMAND, host::PropertyFrame::OkButton, 0);
        return true;
    });
    EXPECT_TRUE(designer.PreTranslateMessage(Message(form, WM_KEYDOWN, VK_F4)));
    ASSERT_TRUE(driver.Done());
    EXPECT_TRUE(designer.Dirty());
    EXPECT_EQ(TitleOf(form), L"Ledger [design] *");

    ASSERT_TRUE(designer.Save());
    EXPECT_EQ(TitleOf(form), L"Ledger [design]");
    HostedForm reopened(saved);
    OleVariant caption;
    ASSERT_EQ(test::Get(reopened.Control(u"cmdPost").Extender(), L"Caption", caption), S_OK);
    EXPECT_EQ(test::AsText(caption), L"&Pay");
    ASSERT_EQ(test::Get(reopened.Control(u"cmdUndo").Extender(), L"Caption", caption), S_OK);
    EXPECT_EQ(test::AsText(caption), L"Undo");
}

} // namespace
} // namespace tolva::win32
