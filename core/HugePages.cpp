// SPDX-License-Identifier: MIT
#include "core/HugePages.h"

#include <cstdint>

#include <sys/mman.h>

namespace ZrXmlLib16 {

void AdviseHugePages(void* block, std::size_t size) noexcept
{
    constexpr std::size_t HUGE_PAGE = std::size_t(2) << 20;
    if (size < LEAST_FOR_HUGE_PAGES) {
        return;
    }
    const std::size_t toBoundary = (~reinterpret_cast<std::uintptr_t>(block) + 1) & (HUGE_PAGE - 1);
    const std::size_t length = (size - toBoundary) & ~(HUGE_PAGE - 1);
    static_cast<void>(madvise(static_cast<char*>(block) + toBoundary, length, MADV_HUGEPAGE));
}

} // namespace ZrXmlLib16
