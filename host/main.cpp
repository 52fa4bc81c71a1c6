// TolvaHost: a form host for TolvaKit's controls. See HostCommandLine for its command line.
#include "host/form/form_literal.h"
#include "host/form/form_reader.h"
#include "host/form/form_syntax_error.h"
#include "host/form/form_writer.h"
#include "host/form/host_command_line.h"
#include "host/form/play_script.h"
#include "host/script/script_file.h"
#include "host/win32/code_behind.h"
#include "host/win32/form_designer.h"
#include "host/win32/host_form.h"
#include "host/win32/player.h"
#include "host/win32/text_file.h"
#include "platform/win32/com/bstr.h"
#include <cstdio>
#include <memory>
#include <ole2.h>
#include <shellapi.h>

using namespace tolva;

namespace {

std::vector<String> Arguments()
{
    int count = 0;
    LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<String> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(win32::FromWide(words[i]));
    LocalFree(words);
    return arguments;
}

void Fail(const std::string& message)
{
    std::fprintf(stderr, "TolvaHost: %s\n", message.c_str());
}

FormObject LoadForm(const String& path)
{
    std::optional<std::string> text = host::ReadTextFile(path, FormReader::MaxTextSize);
    if (!text)
        throw std::runtime_error("cannot read " + ToUtf8(path));
    return FormReader::Read(*text);
}

// The form's code sits next to it: demo.frm, demo.vbs.
std::wstring CodePath(const String& formPath)
{
    std::wstring path(formPath.begin(), formPath.end());
    const size_t dot = path.find_last_of(L'.');
    const size_t separator = path.find_last_of(L"\\/");
    if (dot != std::wstring::npos && (separator == std::wstring::npos || dot > separator))
        path.resize(dot);
    return path + L".vbs";
}

std::vector<PlayStep> LoadSteps(const String& path)
{
    constexpr size_t MaxScriptSize = 1 << 20;
    std::optional<std::string> text = host::ReadTextFile(path, MaxScriptSize);
    if (!text)
        throw std::runtime_error("cannot read " + ToUtf8(path));
    if (text->size() > MaxScriptSize)
        throw std::runtime_error(ToUtf8(path) + " is larger than 1 MiB");
    return ReadPlayScript(*text);
}

bool SaveForm(const host::HostForm& form, const String& path)
{
    try {
        if (host::WriteTextFile(path, FormWriter::Write(form.Save())))
            return true;
        Fail("cannot write " + ToUtf8(path));
    } catch (const FormLiteralError& error) {
        Fail("cannot save " + ToUtf8(path) + ": " + error.what());
    }
    return false;
}

int Run(const HostCommandLine& line)
{
    std::unique_ptr<host::EventLog> log
        = line.logPath.empty() ? std::make_unique<host::EventLog>() : std::make_unique<host::EventLog>(line.logPath);
    std::unique_ptr<host::HostForm> form;
    try {
        form = std::make_unique<host::HostForm>(LoadForm(line.formPath), *log, !line.design);
    } catch (const FormSyntaxError& error) {
        Fail(ToUtf8(line.formPath) + ": " + error.what());
        return 2;
    }
    bool saved = true;
    form->SetQuitOnClose(true);
    form->SetClosingHandler([&] {
        if (!line.savePath.empty())
            saved = SaveForm(*form, line.savePath);
    });
    std::unique_ptr<host::CodeBehind> code;
    const std::wstring codePath = CodePath(line.formPath);
    if (std::optional<std::wstring> text = win32::ReadScriptFile(codePath)) {
        try {
            code = std::make_unique<host::CodeBehind>(*form, *text, codePath, *log);
        } catch (const std::runtime_error& error) {
            Fail(error.what());
            return 2;
        }
        form->SetEventHandlers(code.get());
    }
    std::unique_ptr<host::Player> player;
    if (!line.playPath.empty()) {
        try {
            player = std::make_unique<host::Player>(*form, LoadSteps(line.playPath), line.shotsFolder);
        } catch (const FormSyntaxError& error) {
            Fail(ToUtf8(line.playPath) + ": " + error.what());
            return 2;
        }
    }
    form->Show();
    std::unique_ptr<host::FormDesigner> designer;
    if (line.design)
        designer = std::make_unique<host::FormDesigner>(
            *form, [&] { return SaveForm(*form, line.savePath.empty() ? line.formPath : line.savePath); });
    if (line.closeWhenShown)
        PostMessageW(form->Window(), WM_CLOSE, 0, 0);
    if (player)
        player->Start();

    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (designer && designer->PreTranslateMessage(message))
            continue;
        if (form->PreTranslateMessage(message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    if (code)
        for (const std::string& error : code->TakeErrors())
            Fail(error);
    return saved ? 0 : 1;
}

} // namespace

int main()
{
    HostCommandLine line;
    try {
        line = HostCommandLine::Parse(Arguments());
    } catch (const CommandLineError& error) {
        Fail(error.what());
        std::fprintf(stderr, "%s\n", HostCommandLine::Usage());
        return 2;
    }
    if (FAILED(OleInitialize(nullptr))) {
        Fail("OLE could not be initialised");
        return 3;
    }
    int result = 0;
    try {
        result = Run(line);
    } catch (const std::exception& error) {
        Fail(error.what());
        result = 2;
    }
    OleUninitialize();
    return result;
}
