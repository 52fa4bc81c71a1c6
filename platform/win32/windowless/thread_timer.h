#pragma once
#include "core/timer.h"
#include "platform/win32/windows_api.h"
#include <objbase.h>

namespace tolva::win32 {

// A timer without a window: a thread timer (SetTimer with no window) whose ticks arrive while
// the thread pumps messages, as a script host's Sleep does.
class ThreadTimer final : public Timer {
public:
    // owner: the COM object whose control owns the timer, kept alive while a tick runs, since
    // an event raised by the tick may release it (may be null).
    explicit ThreadTimer(IUnknown* owner)
        : m_owner(owner)
    { }
    ~ThreadTimer() override;
    ThreadTimer(const ThreadTimer&) = delete;
    ThreadTimer& operator=(const ThreadTimer&) = delete;

    void SetInterval(int32_t milliseconds) override;
    int32_t Interval() const override { return m_interval; }
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return m_enabled; }
    void SetTickHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
    void Restart(); // a timer runs only while enabled with a positive interval
    void Stop();

    IUnknown* m_owner;
    int32_t m_interval = 0;
    bool m_enabled = false;
    UINT_PTR m_id = 0;
    std::function<void()> m_handler;
};

} // namespace tolva::win32
