// SPDX-License-Identifier: MIT
#ifndef TESTS_THREADS_THREADS_H
#define TESTS_THREADS_THREADS_H

#include <atomic>
#include <cstdlib>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace TestSupport {

constexpr int THREADS = 8;

/// How often each thread repeats its work: few times, unless the environment asks for more.
inline int Rounds()
{
    const char* const text = std::getenv("ZRXML_TEST_ROUNDS");
    return text ? std::atoi(text) : 100;
}

/// Runs the work Rounds() times in each of eight threads, which begin together.
/// @param work is given the number of the thread; what it throws counts as a failure.
/// @return how often it answered false.
inline int FailuresInThreads(const std::function<bool(int)>& work)
{
    std::atomic<int> waiting{THREADS};
    std::atomic<int> failures{0};
    std::vector<std::thread> threads;
    const int rounds = Rounds();
    for (int number = 0; number < THREADS; ++number)
        threads.emplace_back([&, number] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            for (int round = 0; round < rounds; ++round)
                try {
                    failures += !work(number);
                } catch (...) {
                    ++failures;
                }
        });
    for (std::thread& thread : threads)
        thread.join();
    return failures;
}

} // namespace TestSupport

#endif
