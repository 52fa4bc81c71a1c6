#pragma once
#include "core/string.h"
#include "host/win32/file_handle.h"
#include <cstdio>

namespace tolva::host {

// Where the host writes one line per event: standard output, or a file (UTF-8) named on the
// command line. Lines are flushed at once, so that a test reading the file while the host runs
// sees every event raised so far.
class EventLog {
public:
    EventLog(); // standard output
    explicit EventLog(const String& path); // throws std::runtime_error when the file cannot be made
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    void Write(StringView line);

private:
    FileHandle m_owned; // the named file; empty for standard output
    FILE* m_file;
};

} // namespace tolva::host
