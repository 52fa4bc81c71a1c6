#include "platform/win32/windowless/thread_timer.h"
#include "platform/win32/com/com_ptr.h"
#include <map>

namespace tolva::win32 {

namespace {

// Thread timers identify themselves by the id SetTimer chose; the callback finds the object here.
std::map<UINT_PTR, ThreadTimer*>& Running()
{
    thread_local std::map<UINT_PTR, ThreadTimer*> timers;
    return timers;
}

} // namespace

ThreadTimer::~ThreadTimer()
{
    Stop();
}

void ThreadTimer::SetInterval(int32_t milliseconds)
{
    m_interval = milliseconds;
    Restart();
}

void ThreadTimer::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    Restart();
}

void ThreadTimer::Restart()
{
    Stop();
    if (!m_enabled || m_interval <= 0)
        return;
    m_id = SetTimer(nullptr, 0, UINT(m_interval), &ThreadTimer::OnTimer);
    if (m_id)
        Running()[m_id] = this;
}

void ThreadTimer::Stop()
{
    if (!m_id)
        return;
    KillTimer(nullptr, m_id);
    Running().erase(m_id);
    m_id = 0;
}

void CALLBACK ThreadTimer::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    auto found = Running().find(id);
    if (found == Running().end())
        return;
    ThreadTimer& timer = *found->second;
    // The handler may release the object that owns the timer.
    const ComPtr<IUnknown> owner(timer.m_owner);
    try {
        // Copied: the handler may disable or destroy the timer.
        std::function<void()> handler = timer.m_handler;
        if (handler)
            handler();
    } catch (...) {
        // A tick is a host event: nothing may escape into the message loop.
    }
}

} // namespace tolva::win32
