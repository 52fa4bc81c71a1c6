#include "tests/gui/host_program.h"
#include "host/win32/text_file.h"

namespace tolva::win32::test {

namespace {

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

} // namespace

std::wstring Examples()
{
    const std::string unix = TOLVA_EXAMPLES_DIR;
    return L"Z:" + std::wstring(unix.begin(), unix.end());
}

std::string ReadFile(const std::wstring& path)
{
    return host::ReadTextFile(String(path.begin(), path.end()), 1 << 24).value_or("");
}

ScratchFolder::ScratchFolder()
{
    static int count = 0;
    wchar_t base[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, base);
    m_path = std::wstring(base) + L"tolva-host-" + std::to_wstring(GetCurrentProcessId()) + L"-"
        + std::to_wstring(++count);
    CreateDirectoryW(m_path.c_str(), nullptr);
}

ScratchFolder::~ScratchFolder()
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

HostOutcome RunHost(const std::wstring& arguments, const std::wstring& scratch)
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
    HostOutcome outcome;
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
    outcome.errors = ReadFile(errorsPath);
    return outcome;
}

} // namespace tolva::win32::test
