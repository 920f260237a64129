// SPDX-License-Identifier: MIT
#include "xml/Arena.h"

#include "streams/LargePages.h"

#include <algorithm>
#include <new>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t SMALLEST_CHUNK = 4096;

} // namespace

Arena::~Arena()
{
    while (m_newest) {
        ::operator delete(std::exchange(m_newest, m_newest->older));
    }
}

void* Arena::AllocateFromNewChunk(std::size_t size)
{
    const std::size_t usual = m_total == 0 ? m_expectedSize : m_total / 4;
    const std::size_t chunkSize = std::max({size, usual, SMALLEST_CHUNK});
    void* const memory = ::operator new(sizeof(Chunk) + chunkSize + SLACK);
    PreferLargePages(memory, sizeof(Chunk) + chunkSize);
    m_newest = new (memory) Chunk{m_newest};
    auto* const start = reinterpret_cast<unsigned char*>(m_newest + 1);
    m_total += chunkSize;
    m_free = start + size;
    m_end = start + chunkSize;
    return start;
}

} // namespace ZrXmlLib16
