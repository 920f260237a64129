// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_CPUCLOCK_H
#define ZRXML_BENCHMARKS_CPUCLOCK_H

#include <time.h>

/// Processor time that this process has used, in seconds.
inline double CpuSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Processor time of one run of the action.
template <class Action> double SecondsOf(const Action& action)
{
    const double begin = CpuSeconds();
    action();
    return CpuSeconds() - begin;
}

/// Keeps the smaller of two times; 0 stands for none.
inline void KeepBest(double& best, double seconds)
{
    if (best == 0 || seconds < best) {
        best = seconds;
    }
}

#endif
