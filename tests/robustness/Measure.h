// SPDX-License-Identifier: MIT
#ifndef TESTS_ROBUSTNESS_MEASURE_H
#define TESTS_ROBUSTNESS_MEASURE_H

#include "robustness/AllocationMeter.h"

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>

#include <pthread.h>

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

/// Runs the action in a thread with these attributes, which are destroyed.
inline void RunInThread(pthread_attr_t& attributes, std::function<void()> action)
{
    pthread_t thread;
    const auto start = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    const int code = pthread_create(&thread, &attributes, start, &action);
    pthread_attr_destroy(&attributes);
    if (code != 0)
        throw std::runtime_error("no thread");
    pthread_join(thread, nullptr);
}

/// Runs the action in a thread with a stack of that size.
inline void RunOnStack(std::size_t stackBytes, const std::function<void()>& action)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stackBytes);
    RunInThread(attributes, action);
}

} // namespace TestSupport

#endif
