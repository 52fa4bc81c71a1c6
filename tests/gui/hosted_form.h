#pragma once
#include "host/win32/host_form.h"
#include <memory>
#include <string>
#include <vector>

namespace tolva::win32::test {

// An event log in a temporary file of its own, read back line by line.
class EventLogFile {
public:
    EventLogFile();
    ~EventLogFile();
    EventLogFile(const EventLogFile&) = delete;
    EventLogFile& operator=(const EventLogFile&) = delete;

    host::EventLog& Log() { return *m_log; }
    std::vector<std::string> Lines() const;

private:
    std::wstring m_path;
    std::unique_ptr<host::EventLog> m_log;
};

// A form of the form host built from form-file text, shown, with its event log in a file of its
// own that the test reads back; in design mode when userMode is false.
class HostedForm {
public:
    explicit HostedForm(std::string_view formText, bool userMode = true);
    ~HostedForm();

    host::HostForm& Form() { return *m_form; }
    host::EventLog& EventLog() { return m_log.Log(); }
    host::FormControl& Control(StringView name);
    HWND Window(StringView control) { return Control(control).Window(); }
    // The log lines written so far, and those written since the last call to Take.
    std::vector<std::string> Log() const;
    std::vector<std::string> Take();

private:
    EventLogFile m_log;
    std::unique_ptr<host::HostForm> m_form;
    size_t m_taken = 0;
};

} // namespace tolva::win32::test
