#pragma once
#include "core/timer.h"
#include "platform/win32/windows_api.h"

namespace tolva::win32 {

// A control's timer over a thread timer of SetTimer: ticks arrive through the thread's message
// loop (also inside modal loops such as menus and message boxes).
class WindowTimer final : public Timer {
public:
    WindowTimer() = default;
    ~WindowTimer() override;
    WindowTimer(const WindowTimer&) = delete;
    WindowTimer& operator=(const WindowTimer&) = delete;

    void SetInterval(int32_t milliseconds) override;
    int32_t Interval() const override { return m_interval; }
    void SetEnabled(bool enabled) override;
    bool Enabled() const override { return m_enabled; }
    void SetTickHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
    // Runs while enabled with a positive interval, as a form's timer does.
    void Update();
    void Stop();

    int32_t m_interval = 0;
    bool m_enabled = false;
    UINT_PTR m_id = 0;
    std::function<void()> m_handler;
};

} // namespace tolva::win32
