#pragma once
#include <string>
#include <windows.h>

namespace tolva::win32::test {

// TolvaHost.exe as a user runs it, from the test program's folder.

struct HostOutcome {
    DWORD exitCode = 0;
    std::string errors; // what it wrote to standard output and standard error
};

// Runs TolvaHost with the arguments and waits for it (a minute at most); scratch holds the file
// its output goes to.
HostOutcome RunHost(const std::wstring& arguments, const std::wstring& scratch);

// The source tree's examples, as Wine sees the Unix path on drive Z:.
std::wstring Examples();

// A whole file, empty when it cannot be read.
std::string ReadFile(const std::wstring& path);

// A folder of the test's own, removed with what it holds at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::wstring& Path() const { return m_path; }

private:
    std::wstring m_path;
};

} // namespace tolva::win32::test
