// TolvaHost.exe as a user runs it: the demo form with its code, a scripted tour, pictures and a
// save; a form file it refuses, with the line and reason on standard error.
#include "host/win32/text_file.h"
#include "tests/gui/png_reader.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

namespace tolva::win32 {
namespace {

struct Outcome {
    DWORD exitCode = 0;
    std::string errors;
};

std::wstring Folder(const std::wstring& path)
{
    return path.substr(0, path.find_last_of(L"\\/"));
}

std::wstring ProgramFolder()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return Folder(path);
}

// The source tree's examples, as Wine sees the Unix path on drive Z:.
std::wstring Examples()
{
    const std::string unix = TOLVA_EXAMPLES_DIR;
    return L"Z:" + std::wstring(unix.begin(), unix.end());
}

// A folder of the test's own, removed with what it holds at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        wchar_t base[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, base);
        m_path = std::wstring(base) + L"tolva-host-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(m_path.c_str(), nullptr);
    }
    ~ScratchFolder()
    {
        WIN32_FIND_DATAW found;
        HANDLE search = FindFirstFileW((m_path + L"\\*").c_str(), &found);
        if (search != INVALID_HANDLE_VALUE) {
            do
                DeleteFileW((m_path + L"\\" + found.cFileName).c_str());
            while (FindNextFileW(search, &found));
            FindClose(search);
        }
        RemoveDirectoryW(m_path.c_str());
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::wstring& Path() const { return m_path; }

private:
    std::wstring m_path;
};

std::string Read(const std::wstring& path)
{
    return host::ReadTextFile(String(path.begin(), path.end()), 1 << 24).value_or("");
}

// Runs TolvaHost with the arguments and waits for it; its standard error is kept.
Outcome RunHost(const std::wstring& arguments, const std::wstring& scratch)
{
    const std::wstring errorsPath = scratch + L"\\stderr.txt";
    SECURITY_ATTRIBUTES inherit { sizeof inherit, nullptr, TRUE };
    HANDLE errors = CreateFileW(
        errorsPath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    std::wstring command = L"\"" + ProgramFolder() + L"\\TolvaHost.exe\" " + arguments;
    STARTUPINFOW startup {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdError = errors;
    startup.hStdOutput = errors;
    PROCESS_INFORMATION process {};
    Outcome outcome;
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
        if (WaitForSingleObject(process.hProcess, 60000) != WAIT_OBJECT_0)
            TerminateProcess(process.hProcess, 99);
        GetExitCodeProcess(process.hProcess, &outcome.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    } else {
        outcome.exitCode = 98;
    }
    CloseHandle(errors);
    outcome.errors = Read(errorsPath);
    return outcome;
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

TEST(TolvaHostProgram, PlaysTheDemoWithItsCodeAndSavesIt)
{
    const ScratchFolder folder;
    const std::wstring& scratch = folder.Path();
    const std::wstring log = scratch + L"\\events.txt", saved = scratch + L"\\saved.frm";
    const Outcome outcome = RunHost(L"\"" + Examples() + L"\\demo.frm\" /play \"" + Examples()
            + L"\\demo.play\" /shots \"" + scratch + L"\" /log \"" + log + L"\" /save \"" + saved + L"\"",
        scratch);
    ASSERT_EQ(outcome.exitCode, 0u) << outcome.errors;
    const std::string events = Read(log);
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
    EXPECT_TRUE(Contains(Read(saved), "Caption         =   \"Saved && &Close\"")) << Read(saved);
}

TEST(TolvaHostProgram, RefusesAMalformedFormWithItsLineAndReason)
{
    const ScratchFolder folder;
    const std::wstring& scratch = folder.Path();
    const std::wstring form = scratch + L"\\broken.frm";
    ASSERT_TRUE(host::WriteTextFile(String(form.begin(), form.end()),
        "VERSION 5.00\nBegin VB.Form f\n   Begin TolvaKit.TolvaCommand c\n      Caption = \"OK\n"));
    const Outcome outcome = RunHost(L"\"" + form + L"\"", scratch);
    EXPECT_EQ(outcome.exitCode, 2u);
    EXPECT_TRUE(Contains(outcome.errors, "line 4: Caption: the string has no closing quote")) << outcome.errors;

    const Outcome unknown = RunHost(L"\"" + form + L"\" /frobnicate", scratch);
    EXPECT_EQ(unknown.exitCode, 2u);
    EXPECT_TRUE(Contains(unknown.errors, "usage: TolvaHost")) << unknown.errors;
}

} // namespace
} // namespace tolva::win32
