// SPDX-License-Identifier: MIT
#include "streams/LargePages.h"

#include <cstdint>

#include <sys/mman.h>

namespace ZrXmlLib16 {

void PreferLargePages(void* block, std::size_t size) noexcept
{
    constexpr std::uintptr_t PAGE = std::uintptr_t{2} << 20;
    if (size < LEAST_FOR_LARGE_PAGES) {
        return;
    }
    const auto begin = reinterpret_cast<std::uintptr_t>(block);
    const std::uintptr_t firstPage = (begin + PAGE - 1) / PAGE * PAGE;
    const std::uintptr_t behindLast = (begin + size) / PAGE * PAGE;
    // A system that knows no large pages refuses, which changes nothing.
    madvise(reinterpret_cast<void*>(firstPage), behindLast - firstPage, MADV_HUGEPAGE);
}

} // namespace ZrXmlLib16
