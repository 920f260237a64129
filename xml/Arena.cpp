// SPDX-License-Identifier: MIT
#include "xml/Arena.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t SMALLEST_CHUNK = 4096;
constexpr std::size_t LARGEST_CHUNK = 8 << 20;

} // namespace

void* Arena::AllocateFromNewChunk(std::size_t size)
{
    const std::size_t chunkSize = std::max(size, std::clamp(m_total / 2, SMALLEST_CHUNK, LARGEST_CHUNK));
    m_chunks.push_back(std::unique_ptr<unsigned char[]>(new unsigned char[chunkSize]));
    unsigned char* const start = m_chunks.back().get();
    m_total += chunkSize;
    m_free = start + size;
    m_end = start + chunkSize;
    return start;
}

} // namespace ZrXmlLib16
