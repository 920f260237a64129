// SPDX-License-Identifier: MIT
#ifndef TESTS_ROBUSTNESS_MEASURE_H
#define TESTS_ROBUSTNESS_MEASURE_H

#include "robustness/AllocationMeter.h"

#include <cstddef>
#include <functional>
#include <pthread.h>
#include <stdexcept>
#include <string>

namespace TestSupport {

struct Cost {
    std::size_t blocks;
    std::size_t peakBytes;
};

/// What the action takes from operator new.
inline Cost CostOf(const std::function<void()>& action)
{
    const AllocationMeter meter;
    action();
    return {meter.GetBlocks(), meter.GetPeakBytes()};
}

/// "abcabcabc"
inline std::string Repeated(const std::string& text, std::size_t times)
{
    std::string result;
    result.reserve(text.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        result += text;
    return result;
}

/// Runs the action in a thread with a stack of that size.
inline void RunOnStack(std::size_t stackBytes, std::function<void()> action)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stackBytes);
    pthread_t thread;
    const auto start = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    if (pthread_create(&thread, &attributes, start, &action) == 0)
        pthread_join(thread, nullptr);
    else
        throw std::runtime_error("no thread");
    pthread_attr_destroy(&attributes);
}

} // namespace TestSupport

#endif
