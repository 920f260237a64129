// SPDX-License-Identifier: MIT
#include "faults/FaultInjection.h"

#include <cstdlib>
#include <new>

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define REPLACES_MALLOC
// The C library's own, under the names that its replacements may use.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void __libc_free(void* block);
}
#endif

namespace {

bool isActive = false;
bool failsForever = false;
bool hasFailed = false;
std::size_t countdown = 0;
long liveBlocks = 0;

bool IsNextRefused()
{
    if (!isActive)
        return false;
    const bool isRefused = countdown == 0 ? failsForever : --countdown == 0;
    hasFailed = hasFailed || isRefused;
    return isRefused;
}

void* Counted(void* block)
{
    liveBlocks += block != nullptr;
    return block;
}

#ifdef REPLACES_MALLOC
void* TakeBlock(std::size_t size)
{
    return __libc_malloc(size);
}
void GiveBack(void* block)
{
    __libc_free(block);
}
#else
void* TakeBlock(std::size_t size)
{
    return std::malloc(size);
}
void GiveBack(void* block)
{
    std::free(block);
}
#endif

void* New(std::size_t size)
{
    void* const block = IsNextRefused() ? nullptr : Counted(TakeBlock(size == 0 ? 1 : size));
    if (!block)
        throw std::bad_alloc();
    return block;
}

void Delete(void* block) noexcept
{
    liveBlocks -= block != nullptr;
    GiveBack(block);
}

} // namespace

namespace TestSupport {

FaultInjection::FaultInjection(std::size_t failing, FaultMode mode)
{
    failsForever = mode == FaultMode::Forever;
    hasFailed = false;
    countdown = failing;
    isActive = true;
}

FaultInjection::~FaultInjection()
{
    isActive = false;
}

bool FaultInjection::HasFailed()
{
    return hasFailed;
}

long FaultInjection::GetLiveBlocks()
{
    return liveBlocks;
}

} // namespace TestSupport

void* operator new(std::size_t size)
{
    return New(size);
}
void* operator new[](std::size_t size)
{
    return New(size);
}
void operator delete(void* block) noexcept
{
    Delete(block);
}
void operator delete[](void* block) noexcept
{
    Delete(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    Delete(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    Delete(block);
}

#ifdef REPLACES_MALLOC
extern "C" void* malloc(std::size_t size)
{
    return IsNextRefused() ? nullptr : Counted(__libc_malloc(size));
}
extern "C" void* calloc(std::size_t count, std::size_t size)
{
    return IsNextRefused() ? nullptr : Counted(__libc_calloc(count, size));
}
extern "C" void* realloc(void* block, std::size_t size)
{
    if (IsNextRefused())
        return nullptr;
    void* const moved = __libc_realloc(block, size);
    liveBlocks += !block && moved;
    liveBlocks -= block && !moved && size == 0;
    return moved;
}
extern "C" void free(void* block)
{
    liveBlocks -= block != nullptr;
    __libc_free(block);
}
#endif
