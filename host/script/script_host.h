#pragma once
#include "host/script/script_error.h"
#include "platform/win32/com/com_ptr.h"
#include <activscp.h>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tolva::win32 {

class EventConnection;
class ScriptSite;

// A script engine (Wine's or Windows' VBScript or JScript) with a WScript-like object: Echo,
// CreateObject(progId [, prefix]), ConnectObject(object, prefix), Sleep and Quit. Named objects
// (a form's controls) can be added, their events connected to prefix_EventName procedures, and
// procedures called from outside. Typed by-reference event arguments reach the engines as
// by-reference variants; what the script assigns to them is copied back.
//
// Single-threaded: create, run and destroy it on one apartment thread.
class ScriptHost {
public:
    enum class Language { VBScript, JScript };
    using Output = std::function<void(std::wstring_view line)>;

    // Throws ComError when the engine cannot be created.
    ScriptHost(Language language, Output echo);
    ~ScriptHost();
    ScriptHost(const ScriptHost&) = delete;
    ScriptHost& operator=(const ScriptHost&) = delete;

    // The language of a script file by its extension (.vbs, .js), if it has one of them.
    static std::optional<Language> LanguageOf(std::wstring_view fileName);

    // Makes object visible to the script under name.
    void AddObject(const std::wstring& name, IDispatch* object);

    // Calls prefix + EventName of the script for every event of source. Throws ComError when
    // source has no event interface to connect to.
    void ConnectEvents(IUnknown* source, const std::wstring& prefix);

    // Runs the code's top-level statements (and keeps its procedures for later calls). False
    // when the script stopped on an error; WScript.Quit is no error.
    bool Run(const std::wstring& code);

    // Calls a procedure of the script; false when it does not exist or failed.
    bool Call(const std::wstring& procedure, std::span<VARIANT> arguments, VARIANT* result = nullptr);

    // Lets the thread's messages (timers, windows) run for the given time.
    static void Sleep(unsigned long milliseconds);

    const std::vector<ScriptError>& Errors() const { return m_errors; }
    bool QuitRequested() const { return m_quit.has_value(); }
    int ExitCode() const { return m_quit.value_or(0); }

    // For the host's own COM objects.
    void Echo(std::wstring_view line) const;
    void RequestQuit(int code) { m_quit = code; }
    void ReportError(ScriptError error);
    IUnknown* NamedObject(const std::wstring& name) const;
    ComPtr<IDispatch> ScriptGlobals() const;

private:
    Output m_echo;
    ComPtr<IActiveScript> m_engine;
    ComPtr<IActiveScriptParse> m_parser;
    ComPtr<ScriptSite> m_site;
    ComPtr<IDispatch> m_wscript;
    std::map<std::wstring, ComPtr<IUnknown>> m_objects;
    std::vector<ComPtr<EventConnection>> m_connections;
    std::vector<ScriptError> m_errors;
    std::optional<int> m_quit;
};

} // namespace tolva::win32
