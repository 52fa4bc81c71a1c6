#pragma once
// GoogleTest's Notification for MinGW's win32 thread model, which lacks std::mutex and
// std::condition_variable: a manual-reset event. Forced into GoogleTest's translation units.
#include "platform/win32/windows_api.h"

namespace testing::internal {

class Notification {
public:
    Notification()
        : m_event(CreateEventW(nullptr, TRUE, FALSE, nullptr))
    { }
    ~Notification() { CloseHandle(m_event); }
    Notification(const Notification&) = delete;
    Notification& operator=(const Notification&) = delete;

    void Notify() { SetEvent(m_event); }
    void WaitForNotification() { WaitForSingleObject(m_event, INFINITE); }

private:
    HANDLE m_event;
};

} // namespace testing::internal
