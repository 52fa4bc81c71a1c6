// tolva_script: runs a VBScript (.vbs) or JScript (.js) file with a WScript object that also
// connects events (WScript.ConnectObject, CreateObject with a prefix) and sleeps while messages
// run. Exit code: the script's WScript.Quit code, 1 after a script error, 2 for bad usage.
#include "host/script/script_file.h"
#include "host/script/script_host.h"
#include "platform/win32/com/com_error.h"
#include <ole2.h>
#include <string>

using namespace tolva::win32;

namespace {

void Write(DWORD stream, std::wstring_view text)
{
    std::wstring line(text);
    line += L"\r\n";
    int size = WideCharToMultiByte(CP_UTF8, 0, line.data(), int(line.size()), nullptr, 0, nullptr, nullptr);
    std::string bytes(size_t(size > 0 ? size : 0), '\0');
    if (size > 0)
        WideCharToMultiByte(CP_UTF8, 0, line.data(), int(line.size()), bytes.data(), size, nullptr, nullptr);
    DWORD written = 0;
    WriteFile(GetStdHandle(stream), bytes.data(), DWORD(bytes.size()), &written, nullptr);
}

int RunFile(const std::wstring& path)
{
    std::optional<ScriptHost::Language> language = ScriptHost::LanguageOf(path);
    if (!language) {
        Write(STD_ERROR_HANDLE, L"tolva_script: the file must end in .vbs or .js: " + path);
        return 2;
    }
    std::optional<std::wstring> code = ReadScriptFile(path);
    if (!code) {
        Write(STD_ERROR_HANDLE, L"tolva_script: cannot read " + path);
        return 2;
    }
    try {
        ScriptHost host(*language, [](std::wstring_view line) { Write(STD_OUTPUT_HANDLE, line); });
        bool ran = host.Run(*code);
        for (const ScriptError& error : host.Errors())
            Write(STD_ERROR_HANDLE, error.Format(path));
        if (host.QuitRequested())
            return host.ExitCode();
        return ran ? 0 : 1;
    } catch (const ComError& e) {
        Write(STD_ERROR_HANDLE,
            L"tolva_script: the script engine is not available (" + std::to_wstring(e.Result()) + L")");
        return 2;
    }
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 2) {
        Write(STD_ERROR_HANDLE, L"usage: tolva_script file.vbs|file.js");
        return 2;
    }
    if (FAILED(OleInitialize(nullptr)))
        return 2;
    int result = RunFile(argv[1]);
    OleUninitialize();
    return result;
}
