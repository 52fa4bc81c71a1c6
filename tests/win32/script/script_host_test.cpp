// The script host library: running code, errors, Quit, calls into the script, Sleep, and a
// control's events handled by VBScript and JScript procedures connected with ConnectObject.
#include "host/script/script_file.h"
#include "host/script/script_host.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/font_printing.h"
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

std::wstring ScriptPath(const wchar_t* name)
{
    return std::wstring(TOLVA_SCRIPT_DIR) + name;
}

class ScriptHostTest : public testing::Test {
protected:
    std::unique_ptr<ScriptHost> Host(ScriptHost::Language language)
    {
        return std::make_unique<ScriptHost>(language, [this](std::wstring_view line) { echoed.emplace_back(line); });
    }

    std::vector<std::wstring> echoed;
};

TEST_F(ScriptHostTest, EchoJoinsItsArgumentsAsTheLanguagePrintsThem)
{
    auto host = Host(ScriptHost::Language::VBScript);
    ASSERT_TRUE(host->Run(L"WScript.Echo \"Total\", 12.5, True, Null\nWScript.Echo"));
    EXPECT_EQ(echoed, (std::vector<std::wstring> { L"Total 12.5 True Null", L"" }));
}

TEST_F(ScriptHostTest, AnErrorStopsTheScriptAndIsReportedWithItsPlace)
{
    auto host = Host(ScriptHost::Language::VBScript);
    EXPECT_FALSE(host->Run(L"WScript.Echo \"before\"\nDim x\nx = CLng(\"many\")\nWScript.Echo \"after\""));
    EXPECT_EQ(echoed, std::vector<std::wstring> { L"before" });
    ASSERT_EQ(host->Errors().size(), 1u);
    EXPECT_EQ(host->Errors()[0].line, 3u);
    EXPECT_EQ(host->Errors()[0].description, L"Type mismatch");
    EXPECT_EQ(host->Errors()[0].Format(L"a.vbs").rfind(L"a.vbs(3, ", 0), 0u);
}

TEST_F(ScriptHostTest, QuitEndsTheScriptWithItsCodeAndIsNoError)
{
    auto host = Host(ScriptHost::Language::JScript);
    EXPECT_TRUE(host->Run(L"WScript.Echo('one'); WScript.Quit(3); WScript.Echo('two');"));
    EXPECT_TRUE(host->QuitRequested());
    EXPECT_EQ(host->ExitCode(), 3);
    EXPECT_TRUE(host->Errors().empty());
    EXPECT_EQ(echoed, std::vector<std::wstring> { L"one" });
}

TEST_F(ScriptHostTest, ProceduresCanBeCalledFromTheHost)
{
    auto host = Host(ScriptHost::Language::VBScript);
    ASSERT_TRUE(host->Run(L"Function Twice(n)\nTwice = n * 2\nEnd Function"));
    VARIANT argument = Long(21);
    OleVariant result;
    ASSERT_TRUE(host->Call(L"Twice", std::span<VARIANT>(&argument, 1), result.Put()));
    EXPECT_EQ(AsLong(result), 42);
    EXPECT_FALSE(host->Call(L"Missing", {}));
}

int ticks = 0;
void CALLBACK CountTick(HWND, UINT, UINT_PTR, DWORD)
{
    ++ticks;
}

TEST_F(ScriptHostTest, SleepLetsTimersRun)
{
    ticks = 0;
    UINT_PTR timer = SetTimer(nullptr, 0, 10, &CountTick);
    auto host = Host(ScriptHost::Language::VBScript);
    ASSERT_TRUE(host->Run(L"WScript.Sleep 100"));
    KillTimer(nullptr, timer);
    EXPECT_GT(ticks, 0);
}

TEST_F(ScriptHostTest, CreateObjectMakesARegisteredControl)
{
    auto host = Host(ScriptHost::Language::VBScript);
    ASSERT_TRUE(host->Run(L"Set c = WScript.CreateObject(\"TolvaKit.TolvaCommand\")\nWScript.Echo c.Caption"));
    EXPECT_EQ(echoed, std::vector<std::wstring> { L"TolvaCommand1" });
    EXPECT_FALSE(host->Run(L"Set d = WScript.CreateObject(\"TolvaKit.NoSuchThing\")"));
}

TEST_F(ScriptHostTest, ScriptFilesAreReadInTheirEncoding)
{
    std::optional<std::wstring> text = ReadScriptFile(ScriptPath(L"command_events.vbs"));
    ASSERT_TRUE(text);
    EXPECT_NE(text->find(L"WScript.ConnectObject cmd, \"cmd_\""), std::wstring::npos);
    EXPECT_FALSE(ReadScriptFile(ScriptPath(L"no_such_file.vbs")));
}

class ScriptEvents : public ScriptHostTest {
protected:
    void Load(ScriptHost::Language language, const wchar_t* file)
    {
        host = Host(language);
        host->AddObject(L"cmd", command.Dispatch());
        std::optional<std::wstring> code = ReadScriptFile(ScriptPath(file));
        ASSERT_TRUE(code);
        ASSERT_TRUE(host->Run(*code));
    }

    CommandObject command;
    std::unique_ptr<ScriptHost> host;
};

TEST_F(ScriptEvents, VBScriptHandlersReceiveTheArgumentsAndMayCallBack)
{
    Load(ScriptHost::Language::VBScript, L"command_events.vbs");
    command.Input().OnMouseDown(1, 2, 150.0f, 75.5f);
    command.Input().OnMouseUp(1, 0, 150.0f, 75.5f);
    EXPECT_EQ(echoed, (std::vector<std::wstring> { L"MouseDown 1 2 150 75.5", L"Click TolvaCommand1", L"MouseUp 1" }));
    EXPECT_EQ(command.Control().Caption(), u"Clicked");
    EXPECT_TRUE(host->Errors().empty());
}

TEST_F(ScriptEvents, WhatVBScriptAssignsToByReferenceArgumentsReachesTheControl)
{
    Load(ScriptHost::Language::VBScript, L"command_events.vbs");
    int16_t keyAscii = 'q';
    command.Input().OnKeyPress(keyAscii);
    EXPECT_EQ(keyAscii, 'Q');
    int16_t keyCode = 112, shift = 0;
    command.Input().OnKeyDown(keyCode, shift);
    EXPECT_EQ(keyCode, 0);
    keyCode = 65;
    command.Input().OnKeyDown(keyCode, shift);
    EXPECT_EQ(keyCode, 65);
}

TEST_F(ScriptEvents, JScriptHandlersReceiveTypedByReferenceArgumentsSafely)
{
    Load(ScriptHost::Language::JScript, L"command_events.js");
    command.Input().OnMouseDown(2, 0, 30.0f, 45.0f);
    command.Input().OnMouseUp(1, 0, 30.0f, 45.0f);
    int16_t keyAscii = 'x';
    command.Input().OnKeyPress(keyAscii);
    EXPECT_EQ(echoed, (std::vector<std::wstring> { L"MouseDown 2 0 30 45", L"Click TolvaCommand1", L"KeyPress 120" }));
    EXPECT_EQ(keyAscii, 'x');
    EXPECT_EQ(command.Control().Caption(), u"Clicked");
}

TEST_F(ScriptEvents, FontChangesFromVBScriptReachTheControlAsTheScriptMadeThem)
{
    Font tahoma;
    tahoma.name = u"Tahoma";
    tahoma.size = 9;
    ComPtr<IFont> font = CreateStdFont(tahoma);
    ASSERT_EQ(
        Put(command.Dispatch(), L"Font", Object(font.As<IDispatch>(IID_IDispatch).Get()), DISPATCH_PROPERTYPUTREF),
        S_OK);
    host = Host(ScriptHost::Language::VBScript);
    host->AddObject(L"cmd", command.Dispatch());
    // Reading the font first makes Wine's font object report the face and size it realised.
    ASSERT_TRUE(host->Run(L"WScript.Echo cmd.Font.Name, cmd.Font.Size\ncmd.Font.Bold = True\ncmd.Font.Italic = True"));
    Font expected = tahoma;
    expected.weight = 700;
    expected.italic = true;
    EXPECT_EQ(command.Control().GetFont(), expected);
    EXPECT_EQ(echoed.size(), 1u);
}

TEST_F(ScriptEvents, NoEventReachesTheScriptAfterTheHostIsGone)
{
    Load(ScriptHost::Language::VBScript, L"command_events.vbs");
    host.reset();
    command.Input().OnDblClick();
    command.Input().OnMouseDown(1, 0, 0, 0);
    EXPECT_TRUE(echoed.empty());
}

TEST_F(ScriptEvents, ConnectingAnObjectWithoutEventsIsAnError)
{
    host = Host(ScriptHost::Language::VBScript);
    EXPECT_FALSE(host->Run(L"WScript.ConnectObject WScript, \"w_\""));
    EXPECT_EQ(host->Errors().size(), 1u);
}

} // namespace
} // namespace tolva::win32::test
