// SPDX-License-Identifier: MIT
#include "benchmarks/MemoryMeter.h"

#include <malloc.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZRXML_OWN_MALLOC 0
#else
#define ZRXML_OWN_MALLOC 1
#endif

namespace {

struct Tally {
    bool active = false;
    std::size_t blocks = 0;
    std::ptrdiff_t bytes = 0;
    std::ptrdiff_t peakBytes = 0;
};

Tally tally;

#if ZRXML_OWN_MALLOC

std::ptrdiff_t BytesOf(void* block)
{
    constexpr std::size_t header = sizeof(std::size_t);
    return static_cast<std::ptrdiff_t>(malloc_usable_size(block) + header);
}

void* Taken(void* block)
{
    if (block) {
        ++tally.blocks;
        tally.bytes += BytesOf(block);
        if (tally.bytes > tally.peakBytes) {
            tally.peakBytes = tally.bytes;
        }
    }
    return block;
}

#endif

} // namespace

MemoryMeter::MemoryMeter()
{
    tally = Tally();
    tally.active = true;
}
MemoryMeter::~MemoryMeter()
{
    tally.active = false;
}
std::size_t MemoryMeter::GetBlocks() const
{
    return tally.blocks;
}
std::size_t MemoryMeter::GetPeakBytes() const
{
    return static_cast<std::size_t>(tally.peakBytes);
}

#if ZRXML_OWN_MALLOC

extern "C" {

// The C library's own allocator under its other names.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);

// What is measured pays for no more than one test of the flag.
void* malloc(std::size_t size)
{
    return tally.active ? Taken(__libc_malloc(size)) : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return tally.active ? Taken(__libc_calloc(count, size)) : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size)
{
    if (!tally.active) {
        return __libc_realloc(block, size);
    }
    const std::ptrdiff_t before = block ? BytesOf(block) : 0;
    void* moved = __libc_realloc(block, size);
    if (moved || size == 0) {
        tally.bytes -= before;
    }
    return Taken(moved);
}

void free(void* block)
{
    if (tally.active && block) {
        tally.bytes -= BytesOf(block);
    }
    __libc_free(block);
}
}

#endif
