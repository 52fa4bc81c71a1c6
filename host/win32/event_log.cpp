#include "host/win32/event_log.h"
#include <stdexcept>
#include <string>

namespace tolva::host {

EventLog::EventLog()
    : m_file(stdout)
{ }

EventLog::EventLog(const String& path)
    : m_owned(_wfopen(reinterpret_cast<const wchar_t*>(path.c_str()), L"wb"))
    , m_file(m_owned.get())
{
    if (!m_file)
        throw std::runtime_error("cannot write the log file " + ToUtf8(path));
}

void EventLog::Write(StringView line)
{
    const std::string text = ToUtf8(line) + "\n";
    fwrite(text.data(), 1, text.size(), m_file);
    fflush(m_file);
}

} // namespace tolva::host
