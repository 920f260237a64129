// SPDX-License-Identifier: MIT
#include "robustness/AllocationMeter.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

struct Tally {
    bool active = false;
    std::size_t blocks = 0;
    std::ptrdiff_t bytes = 0;
    std::ptrdiff_t peakBytes = 0;
};

thread_local Tally tally;

std::ptrdiff_t BlockBytes(void* block)
{
    constexpr std::size_t header = sizeof(std::size_t);
    return static_cast<std::ptrdiff_t>(malloc_usable_size(block) + header);
}

void* Allocate(std::size_t size)
{
    void* block = std::malloc(size == 0 ? 1 : size);
    if (!block) {
        throw std::bad_alloc();
    }
    if (tally.active) {
        ++tally.blocks;
        tally.bytes += BlockBytes(block);
        if (tally.bytes > tally.peakBytes) {
            tally.peakBytes = tally.bytes;
        }
    }
    return block;
}

void Free(void* block) noexcept
{
    if (tally.active && block) {
        tally.bytes -= BlockBytes(block);
    }
    std::free(block);
}

} // namespace

AllocationMeter::AllocationMeter()
{
    tally = Tally();
    tally.active = true;
}
AllocationMeter::~AllocationMeter()
{
    tally.active = false;
}
std::size_t AllocationMeter::GetBlocks() const
{
    return tally.blocks;
}
std::size_t AllocationMeter::GetPeakBytes() const
{
    return static_cast<std::size_t>(tally.peakBytes);
}

void* operator new(std::size_t size)
{
    return Allocate(size);
}
void* operator new[](std::size_t size)
{
    return Allocate(size);
}
void operator delete(void* block) noexcept
{
    Free(block);
}
void operator delete[](void* block) noexcept
{
    Free(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    Free(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    Free(block);
}
