#include "host/script/script_host.h"
#include "host/script/event_connection.h"
#include "host/script/script_site.h"
#include "host/script/wscript_object.h"
#include "platform/win32/com/com_error.h"
#include "platform/win32/com/exception_info.h"

// MinGW's uuid library lacks these two; their values are the published ones.
extern "C" const IID IID_IActiveScriptParse32
    = { 0xbb1a2ae2, 0xa4f9, 0x11cf, { 0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64 } };
extern "C" const IID IID_IActiveScriptParse64
    = { 0xc7ef7658, 0xe1ee, 0x480e, { 0x97, 0xea, 0xd5, 0x2c, 0xb4, 0xd7, 0x6d, 0x17 } };

namespace tolva::win32 {

namespace {

#ifdef _WIN64
const IID& ParseIid = IID_IActiveScriptParse64;
#else
const IID& ParseIid = IID_IActiveScriptParse32;
#endif

bool EndsWith(std::wstring_view text, std::wstring_view end)
{
    return text.size() >= end.size()
        && CompareStringOrdinal(
               text.data() + text.size() - end.size(), int(end.size()), end.data(), int(end.size()), TRUE)
        == CSTR_EQUAL;
}

} // namespace

ScriptHost::ScriptHost(Language language, Output echo)
    : m_echo(std::move(echo))
{
    CLSID engine = {};
    ThrowIfFailed(CLSIDFromProgID(language == Language::VBScript ? L"VBScript" : L"JScript", &engine));
    ThrowIfFailed(CoCreateInstance(engine, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript, m_engine.PutVoid()));
    ThrowIfFailed(m_engine->QueryInterface(ParseIid, m_parser.PutVoid()));
    m_site = ComPtr<ScriptSite>::Adopt(new ScriptSite(*this));
    m_wscript = ComPtr<IDispatch>::Adopt(new WScriptObject(*this));
    m_objects[L"WScript"] = ComPtr<IUnknown>(m_wscript.Get());
    ThrowIfFailed(m_engine->SetScriptSite(m_site.Get()));
    ThrowIfFailed(m_parser->InitNew());
    ThrowIfFailed(m_engine->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE));
    ThrowIfFailed(m_engine->SetScriptState(SCRIPTSTATE_CONNECTED));
}

ScriptHost::~ScriptHost()
{
    for (auto& connection : m_connections)
        connection->Disconnect();
    m_connections.clear();
    m_engine->Close();
}

std::optional<ScriptHost::Language> ScriptHost::LanguageOf(std::wstring_view fileName)
{
    if (EndsWith(fileName, L".vbs"))
        return Language::VBScript;
    if (EndsWith(fileName, L".js"))
        return Language::JScript;
    return std::nullopt;
}

void ScriptHost::AddObject(const std::wstring& name, IDispatch* object)
{
    m_objects[name] = ComPtr<IUnknown>(object);
    ThrowIfFailed(m_engine->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE));
}

void ScriptHost::ConnectEvents(IUnknown* source, const std::wstring& prefix)
{
    m_connections.push_back(EventConnection::Connect(*this, source, prefix));
}

bool ScriptHost::Run(const std::wstring& code)
{
    const size_t errorsBefore = m_errors.size();
    // Errors reach the site's OnScriptError; what the parser fills in here is not needed.
    win32::ExceptionInfo exception;
    HRESULT hr = m_parser->ParseScriptText(
        code.c_str(), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE, nullptr, exception.Put());
    if (QuitRequested())
        return true;
    if (FAILED(hr) && m_errors.size() == errorsBefore) {
        ScriptError error;
        error.code = hr;
        error.description = L"The script engine refused the script";
        m_errors.push_back(error);
    }
    return SUCCEEDED(hr) && m_errors.size() == errorsBefore;
}

bool ScriptHost::Call(const std::wstring& procedure, std::span<VARIANT> arguments, VARIANT* result)
{
    ComPtr<IDispatch> globals = ScriptGlobals();
    if (!globals)
        return false;
    std::wstring name = procedure;
    LPOLESTR names[] = { name.data() };
    DISPID id = DISPID_UNKNOWN;
    if (FAILED(globals->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id)))
        return false;
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS params = { reversed.data(), nullptr, UINT(reversed.size()), 0 };
    const size_t errorsBefore = m_errors.size();
    HRESULT hr = globals->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result, nullptr, nullptr);
    return SUCCEEDED(hr) && m_errors.size() == errorsBefore;
}

void ScriptHost::Sleep(unsigned long milliseconds)
{
    const ULONGLONG end = GetTickCount64() + milliseconds;
    for (;;) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        const ULONGLONG now = GetTickCount64();
        if (now >= end)
            return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, DWORD(end - now), QS_ALLINPUT);
    }
}

void ScriptHost::Echo(std::wstring_view line) const
{
    if (m_echo)
        m_echo(line);
}

void ScriptHost::ReportError(ScriptError error)
{
    // Quit stops the script with an error of its own: that one is no failure.
    if (!QuitRequested())
        m_errors.push_back(std::move(error));
}

IUnknown* ScriptHost::NamedObject(const std::wstring& name) const
{
    auto found = m_objects.find(name);
    return found == m_objects.end() ? nullptr : found->second.Get();
}

ComPtr<IDispatch> ScriptHost::ScriptGlobals() const
{
    ComPtr<IDispatch> globals;
    m_engine->GetScriptDispatch(nullptr, globals.Put());
    return globals;
}

} // namespace tolva::win32
