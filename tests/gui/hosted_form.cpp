#include "tests/gui/hosted_form.h"
#include "host/form/form_reader.h"
#include "host/win32/text_file.h"
#include "tests/gui/gui_support.h"

namespace tolva::win32::test {

namespace {

std::wstring TemporaryFile()
{
    wchar_t folder[MAX_PATH] = {};
    wchar_t path[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"tlv", 0, path);
    return path;
}

} // namespace

EventLogFile::EventLogFile()
    : m_path(TemporaryFile())
    , m_log(std::make_unique<host::EventLog>(String(m_path.begin(), m_path.end())))
{ }

EventLogFile::~EventLogFile()
{
    m_log.reset();
    DeleteFileW(m_path.c_str());
}

std::vector<std::string> EventLogFile::Lines() const
{
    const std::optional<std::string> text = host::ReadTextFile(String(m_path.begin(), m_path.end()), 1 << 24);
    std::vector<std::string> lines;
    size_t start = 0;
    while (text && start < text->size()) {
        const size_t end = text->find('\n', start);
        lines.push_back(text->substr(start, end - start));
        start = end == std::string::npos ? text->size() : end + 1;
    }
    return lines;
}

HostedForm::HostedForm(std::string_view formText, bool userMode)
    : m_form(std::make_unique<host::HostForm>(FormReader::Read(formText), m_log.Log(), userMode))
{
    m_form->Show();
    PumpFor(30);
}

HostedForm::~HostedForm()
{
    m_form.reset();
}

host::FormControl& HostedForm::Control(StringView name)
{
    host::FormControl* control = m_form->FindControl(name);
    if (!control)
        throw std::invalid_argument("no such control");
    return *control;
}

std::vector<std::string> HostedForm::Log() const
{
    return m_log.Lines();
}

std::vector<std::string> HostedForm::Take()
{
    std::vector<std::string> lines = Log();
    std::vector<std::string> fresh(lines.begin() + std::ptrdiff_t(std::min(m_taken, lines.size())), lines.end());
    m_taken = lines.size();
    return fresh;
}

} // namespace tolva::win32::test
