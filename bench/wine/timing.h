#pragma once
#include "platform/win32/windows_api.h"
#include <functional>
#include <string>
#include <vector>

namespace tolva::bench {

// One thing timed: a name and one repetition of the work (a mouse move, a repaint, a blit).
struct TimedCase {
    std::wstring name;
    std::function<void(int iteration)> once;
};

// Microseconds per repetition for each case: rounds of `repetitions` each, the cases taking turns
// within a round so that a busy machine slows them alike; the median round counts.
std::vector<double> MicrosecondsPerRepetition(const std::vector<TimedCase>& cases, int rounds, int repetitions);

} // namespace tolva::bench
