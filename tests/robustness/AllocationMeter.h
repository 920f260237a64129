// SPDX-License-Identifier: MIT
#ifndef TESTS_ROBUSTNESS_ALLOCATIONMETER_H
#define TESTS_ROBUSTNESS_ALLOCATIONMETER_H

#include <cstddef>

/// What one thread took from operator new, which this program replaces, from the meter's creation on. One meter at a
/// time and thread.
class AllocationMeter {
public:
    AllocationMeter();
    ~AllocationMeter();
    AllocationMeter(const AllocationMeter&) = delete;
    AllocationMeter& operator=(const AllocationMeter&) = delete;

    /// Number of blocks taken.
    std::size_t GetBlocks() const;
    /// Most bytes held at one time beyond those held at the start, the allocator's overhead included.
    std::size_t GetPeakBytes() const;
};

#endif
