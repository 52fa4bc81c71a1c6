#pragma once
#include "core/string.h"
#include <cstdio>

namespace tolva::host {

// Where the host writes one line per event: standard output, or a file (UTF-8) named on the
// command line. Lines are flushed at once, so that a test reading the file while the host runs
// sees every event raised so far.
class EventLog {
public:
    EventLog(); // standard output
    explicit EventLog(const String& path); // throws std::runtime_error when the file cannot be made
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    void Write(StringView line);

private:
    FILE* m_file;
    bool m_owned;
};

} // namespace tolva::host
