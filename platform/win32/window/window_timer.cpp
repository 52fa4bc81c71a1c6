#include "platform/win32/window/window_timer.h"
#include <map>

namespace tolva::win32 {

namespace {

// Running timers by id. A WM_TIMER already queued when its timer stops finds no entry here.
std::map<UINT_PTR, WindowTimer*>& RunningTimers()
{
    static std::map<UINT_PTR, WindowTimer*> timers;
    return timers;
}

} // namespace

WindowTimer::~WindowTimer()
{
    Stop();
}

void WindowTimer::SetInterval(int32_t milliseconds)
{
    m_interval = milliseconds;
    Update();
}

void WindowTimer::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    Update();
}

void WindowTimer::Update()
{
    Stop();
    if (!m_enabled || m_interval <= 0)
        return;
    m_id = SetTimer(nullptr, 0, UINT(m_interval), &WindowTimer::OnTimer);
    if (m_id)
        RunningTimers()[m_id] = this;
}

void WindowTimer::Stop()
{
    if (!m_id)
        return;
    KillTimer(nullptr, m_id);
    RunningTimers().erase(m_id);
    m_id = 0;
}

void CALLBACK WindowTimer::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    auto it = RunningTimers().find(id);
    if (it == RunningTimers().end() || !it->second->m_handler)
        return;
    // A copy: the handler may stop or destroy its own timer.
    std::function<void()> handler = it->second->m_handler;
    try {
        handler();
    } catch (...) {
        // Nothing above a timer callback could take the error; the next tick comes regardless.
    }
}

} // namespace tolva::win32
