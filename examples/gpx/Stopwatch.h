// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_STOPWATCH_H
#define EXAMPLES_GPX_STOPWATCH_H

#include <chrono>

namespace Demo {

/// Measures the time since it was made.
class Stopwatch {
public:
    double GetSeconds() const
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace Demo

#endif
