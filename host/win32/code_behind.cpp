#include "host/win32/code_behind.h"
#include "host/win32/host_form.h"
#include "platform/win32/com/bstr.h"
#include <stdexcept>

namespace tolva::host {

namespace {

std::wstring Wide(const String& text)
{
    return std::wstring(text.begin(), text.end());
}

std::string Narrow(const std::wstring& text)
{
    return ToUtf8(win32::FromWide(text));
}

} // namespace

CodeBehind::CodeBehind(HostForm& form, const std::wstring& code, std::wstring fileName, EventLog& log)
    : m_fileName(std::move(fileName))
    , m_script(std::make_unique<win32::ScriptHost>(
          win32::ScriptHost::Language::VBScript, [&log](std::wstring_view line) { log.Write(win32::FromWide(line)); }))
{
    m_script->AddObject(Wide(form.Name()), form.Automation());
    for (MenuItem* menu : form.MenuItems())
        m_script->AddObject(Wide(menu->Name()), menu);
    for (FormControl* control : form.Controls()) {
        m_script->AddObject(Wide(control->Name()), control->Extender());
        m_script->ConnectEvents(control->Object(), Wide(control->Name()) + L"_");
    }
    if (!m_script->Run(code)) {
        const std::vector<std::string> errors = TakeErrors();
        throw std::runtime_error(errors.empty() ? Narrow(m_fileName) + ": the script failed" : errors.front());
    }
}

CodeBehind::~CodeBehind() = default;

void CodeBehind::Run(StringView procedure, std::span<VARIANT*> arguments)
{
    std::vector<VARIANT> values;
    for (VARIANT* argument : arguments)
        values.push_back(*argument);
    m_script->Call(Wide(String(procedure)), values);
}

std::vector<std::string> CodeBehind::TakeErrors()
{
    std::vector<std::string> errors;
    const auto& all = m_script->Errors();
    for (; m_reported < all.size(); ++m_reported)
        errors.push_back(Narrow(all[m_reported].Format(m_fileName)));
    return errors;
}

} // namespace tolva::host
