#include "host/form/form_reader.h"
#include "host/win32/code_behind.h"
#include "tests/gui/hosted_form.h"
#include "tests/gui/sample_forms.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

using test::HostedForm;

bool Logged(const HostedForm& hosted, const std::string& line)
{
    for (const std::string& logged : hosted.Log())
        if (logged == line)
            return true;
    return false;
}

TEST(CodeBehind, ItsProceduresReceiveTheControlsEventsAndMenuClicks)
{
    HostedForm hosted(test::ButtonsForm);
    host::EventLog& log = hosted.EventLog();
    host::CodeBehind code(hosted.Form(),
        L"Sub cmdOK_Click()\n"
        L"    WScript.Echo \"clicked \" & cmdOK.Caption\n"
        L"End Sub\n"
        L"Sub cmdOK_MouseDown(Button, Shift, X, Y)\n"
        L"    WScript.Echo \"down \" & Button & \" at \" & X & \",\" & Y\n"
        L"End Sub\n"
        L"Sub mnuFileOpen_Click()\n"
        L"    frmTest.Caption = \"Opened with \" & mnuFileOpen.Caption\n"
        L"End Sub\n",
        L"code.vbs", log);
    hosted.Form().SetEventHandlers(&code);
    HWND button = hosted.Window(u"cmdOK");
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 5));
    SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(20, 5));
    EXPECT_TRUE(Logged(hosted, "down 1 at 300,75"));
    EXPECT_TRUE(Logged(hosted, "clicked &OK"));
    hosted.Form().ClickMenu(*hosted.Form().FindMenu(u"mnuFileOpen"));
    EXPECT_TRUE(Logged(hosted, "mnuFileOpen_Click"));
    EXPECT_EQ(hosted.Form().Caption(), u"Opened with &Open");
    EXPECT_TRUE(code.TakeErrors().empty());
}

TEST(CodeBehind, ACompileErrorStopsItWithTheFileAndLine)
{
    HostedForm hosted(test::ButtonsForm);
    try {
        host::CodeBehind code(
            hosted.Form(), L"Sub cmdOK_Click()\n    x = (\nEnd Sub\n", L"broken.vbs", hosted.EventLog());
        FAIL() << "accepted";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()).rfind("broken.vbs(2, ", 0), 0u) << error.what();
    }
}

TEST(CodeBehind, ARunTimeErrorInAProcedureIsKeptForTheReport)
{
    HostedForm hosted(test::ButtonsForm);
    host::CodeBehind code(
        hosted.Form(), L"Sub mnuFileOpen_Click()\n    Err.Raise 5\nEnd Sub\n", L"failing.vbs", hosted.EventLog());
    hosted.Form().SetEventHandlers(&code);
    hosted.Form().ClickMenu(*hosted.Form().FindMenu(u"mnuFileOpen"));
    const std::vector<std::string> errors = code.TakeErrors();
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].rfind("failing.vbs(2, ", 0), 0u) << errors[0];
    EXPECT_TRUE(code.TakeErrors().empty());
}

} // namespace
} // namespace tolva::win32
