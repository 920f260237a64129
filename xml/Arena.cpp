// SPDX-License-Identifier: MIT
#include "xml/Arena.h"

#include "streams/LargePages.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t SMALLEST_CHUNK = 4096;

} // namespace

void* Arena::AllocateFromNewChunk(std::size_t size)
{
    const std::size_t usual = m_total == 0 ? m_expectedSize : m_total / 4;
    const std::size_t chunkSize = std::max({size, usual, SMALLEST_CHUNK});
    m_chunks.push_back(std::unique_ptr<unsigned char[]>(new unsigned char[chunkSize + SLACK]));
    unsigned char* const start = m_chunks.back().get();
    PreferLargePages(start, chunkSize);
    m_total += chunkSize;
    m_free = start + size;
    m_end = start + chunkSize;
    return start;
}

} // namespace ZrXmlLib16
