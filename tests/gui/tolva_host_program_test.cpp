// TolvaHost.exe as a user runs it: the demo form with its code, a scripted tour, pictures and a
// save; a form file it refuses, with the line and reason on standard error.
#include "host/win32/text_file.h"
#include "tests/gui/host_program.h"
#include "tests/gui/png_reader.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

namespace tolva::win32 {
namespace {

using test::Examples;
using test::RunHost;
using test::ScratchFolder;

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(TolvaHostProgram, PlaysTheDemoWithItsCodeAndSavesIt)
{
    const ScratchFolder folder;
    const std::wstring& scratch = folder.Path();
    const std::wstring log = scratch + L"\\events.txt", saved = scratch + L"\\saved.frm";
    const test::HostOutcome outcome = RunHost(L"\"" + Examples() + L"\\demo.frm\" /play \"" + Examples()
            + L"\\demo.play\" /shots \"" + scratch + L"\" /log \"" + log + L"\" /save \"" + saved + L"\"",
        scratch);
    ASSERT_EQ(outcome.exitCode, 0u) << outcome.errors;
    const std::string events = test::ReadFile(log);
    // In the order the tour makes them, the code's echoes among them.
    const std::vector<std::string> expected { "cmdOK_MouseDown 1, 0, ", "cmdOK_Click", "OK pressed 1 time(s)",
        "cmdFile_Click", "frmDemo.PopupMenu mnuFile, 2640, 690", "mnuFileSave_Click", "Save chosen from the &File menu",
        "cmdSaveClose_Click", "cmdSaveClose_MouseUp 1, 0, 0, 0" };
    size_t at = 0;
    for (const std::string& line : expected) {
        at = events.find(line, at);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << line << "\n" << events;
    }
    for (const wchar_t* shot : { L"01-form", L"03-ok-pushed", L"05-file-menu", L"08-after-access-key" }) {
        const auto picture = test::ReadPng(scratch + L"\\" + shot + L".png");
        ASSERT_TRUE(picture);
        EXPECT_GT(picture->width, 300);
    }
    EXPECT_TRUE(Contains(test::ReadFile(saved), "Caption         =   \"Saved && &Close\"")) << test::ReadFile(saved);
}

TEST(TolvaHostProgram, RefusesAMalformedFormWithItsLineAndReason)
{
    const ScratchFolder folder;
    const std::wstring& scratch = folder.Path();
    const std::wstring form = scratch + L"\\broken.frm";
    ASSERT_TRUE(host::WriteTextFile(String(form.begin(), form.end()),
        "VERSION 5.00\nBegin VB.Form f\n   Begin TolvaKit.TolvaCommand c\n      Caption = \"OK\n"));
    const test::HostOutcome outcome = RunHost(L"\"" + form + L"\"", scratch);
    EXPECT_EQ(outcome.exitCode, 2u);
    EXPECT_TRUE(Contains(outcome.errors, "line 4: Caption: the string has no closing quote")) << outcome.errors;

    const test::HostOutcome unknown = RunHost(L"\"" + form + L"\" /frobnicate", scratch);
    EXPECT_EQ(unknown.exitCode, 2u);
    EXPECT_TRUE(Contains(unknown.errors, "usage: TolvaHost")) << unknown.errors;
}

} // namespace
} // namespace tolva::win32
