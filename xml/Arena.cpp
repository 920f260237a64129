// SPDX-License-Identifier: MIT
#include "xml/Arena.h"

#include <algorithm>

#include <sys/mman.h>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t SMALLEST_CHUNK = 4096;
constexpr std::size_t HUGE_PAGE = std::size_t(2) << 20;
constexpr std::size_t LEAST_FOR_HUGE_PAGES = 2 * HUGE_PAGE;

/// Asks for huge pages where they pay: the memory of a large document is touched once, and most of that costs page
/// faults. A refusal changes nothing.
void AdviseHugePages(unsigned char* chunk, std::size_t size)
{
    if (size < LEAST_FOR_HUGE_PAGES) {
        return;
    }
    const std::size_t toBoundary = (~reinterpret_cast<std::uintptr_t>(chunk) + 1) & (HUGE_PAGE - 1);
    const std::size_t length = (size - toBoundary) & ~(HUGE_PAGE - 1);
    static_cast<void>(madvise(chunk + toBoundary, length, MADV_HUGEPAGE));
}

} // namespace

void* Arena::AllocateFromNewChunk(std::size_t size)
{
    const std::size_t usual = m_total == 0 ? m_expectedSize : m_total / 4;
    const std::size_t chunkSize = std::max({size, usual, SMALLEST_CHUNK});
    m_chunks.push_back(std::unique_ptr<unsigned char[]>(new unsigned char[chunkSize + SLACK]));
    unsigned char* const start = m_chunks.back().get();
    AdviseHugePages(start, chunkSize);
    m_total += chunkSize;
    m_free = start + size;
    m_end = start + chunkSize;
    return start;
}

} // namespace ZrXmlLib16
