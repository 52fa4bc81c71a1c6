#pragma once
#include "core/string.h"
#include <cstdint>
#include <functional>

namespace tolva {

// A control's timer. Ticks arrive on the user-interface thread while it is enabled.
class Timer {
public:
    virtual ~Timer() = default;

    virtual void SetInterval(int32_t milliseconds) = 0;
    virtual int32_t Interval() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetTickHandler(std::function<void()> handler) = 0;

    // A free text the owner uses to remember what the ticks are for.
    const String& Tag() const { return m_tag; }
    void SetTag(String tag) { m_tag = std::move(tag); }

private:
    String m_tag;
};

} // namespace tolva
