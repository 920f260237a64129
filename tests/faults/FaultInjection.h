// SPDX-License-Identifier: MIT
#ifndef TESTS_FAULTS_FAULTINJECTION_H
#define TESTS_FAULTS_FAULTINJECTION_H

#include <cstddef>

namespace TestSupport {

enum class FaultMode { Once, Forever };

/// While it exists, allocations of this program are counted and the n-th one fails, alone or with all that follow. One
/// at a time; for programs without other threads.
///
/// Replaces operator new and, without sanitizers, which have their own, also malloc, calloc and realloc.
class FaultInjection {
public:
    FaultInjection(std::size_t failing, FaultMode mode);
    ~FaultInjection();
    FaultInjection(const FaultInjection&) = delete;
    FaultInjection& operator=(const FaultInjection&) = delete;

    /// Whether an allocation has failed.
    static bool HasFailed();
    /// Blocks that were taken and not given back, since the program began.
    static long GetLiveBlocks();
};

} // namespace TestSupport

#endif
