#pragma once
#include "host/script/script_host.h"
#include "host/win32/event_handlers.h"
#include "host/win32/event_log.h"
#include <memory>
#include <string>
#include <vector>

namespace tolva::host {

class HostForm;

// A form's VBScript code (the form file's name with .vbs): the form, its controls and its menus
// are visible by name, WScript.Echo writes to the event log, Sub cmdOK_Click and the like
// receive the controls' events (by-reference arguments written back) and the menus' clicks.
class CodeBehind final : public EventHandlers {
public:
    // Runs the code's top-level statements. Throws std::runtime_error with the engine's report
    // ("demo.vbs(3, 1) Microsoft VBScript compilation error: ...") when it fails.
    CodeBehind(HostForm& form, const std::wstring& code, std::wstring fileName, EventLog& log);
    ~CodeBehind() override;

    void Run(StringView procedure, std::span<VARIANT*> arguments) override;

    // The errors the script made since the last call, as cscript prints them.
    std::vector<std::string> TakeErrors();

private:
    std::wstring m_fileName;
    std::unique_ptr<win32::ScriptHost> m_script;
    size_t m_reported = 0;
};

} // namespace tolva::host
