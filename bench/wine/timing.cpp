#include "bench/wine/timing.h"
#include <algorithm>

namespace tolva::bench {

namespace {

double Now()
{
    static const double frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return double(f.QuadPart);
    }();
    LARGE_INTEGER t;
    QueryPerformanceCounter(&t);
    return double(t.QuadPart) * 1e6 / frequency;
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

std::vector<double> MicrosecondsPerRepetition(const std::vector<TimedCase>& cases, int rounds, int repetitions)
{
    std::vector<std::vector<double>> perRound(cases.size());
    for (int round = 0; round < rounds; ++round) {
        for (size_t i = 0; i < cases.size(); ++i) {
            const double start = Now();
            for (int n = 0; n < repetitions; ++n)
                cases[i].once(n);
            perRound[i].push_back((Now() - start) / repetitions);
        }
    }
    std::vector<double> result;
    for (auto& times : perRound)
        result.push_back(Median(times));
    return result;
}

} // namespace tolva::bench
