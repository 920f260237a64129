// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_MEMORYMETER_H
#define ZRXML_BENCHMARKS_MEMORYMETER_H

#include <cstddef>

/// What this program takes from malloc, which it replaces, between the meter's creation and its destruction: the
/// library, the parser in it and operator new included. One meter at a time, in a program with one thread. Under a
/// sanitizer, which has a malloc of its own, all figures are 0.
class MemoryMeter {
public:
    MemoryMeter();
    ~MemoryMeter();
    MemoryMeter(const MemoryMeter&) = delete;
    MemoryMeter& operator=(const MemoryMeter&) = delete;

    /// Number of blocks taken.
    std::size_t GetBlocks() const;
    /// Most bytes held at one time beyond those held at the start, the allocator's overhead included.
    std::size_t GetPeakBytes() const;
};

#endif
