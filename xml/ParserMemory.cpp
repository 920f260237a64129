// SPDX-License-Identifier: MIT
#include "xml/ParserMemory.h"

#include "streams/LargePages.h"

#include <cstdlib>
#include <utility>

namespace ZrXmlLib16 {

namespace {

// The parser's memory functions get no argument that tells whom they work for.
thread_local ParserMemory* CURRENT_MEMORY = nullptr;

} // namespace

ParserMemory::Scope::Scope(ParserMemory& memory) noexcept
    : m_outer(std::exchange(CURRENT_MEMORY, &memory))
{
}

ParserMemory::Scope::~Scope()
{
    CURRENT_MEMORY = m_outer;
}

ParserMemory::Header* ParserMemory::HeaderOf(void* block) noexcept
{
    static_assert(sizeof(Header) % alignof(std::max_align_t) == 0, "what follows the header is aligned for any type");
    return static_cast<Header*>(block) - 1;
}

bool ParserMemory::Take(std::size_t size) noexcept
{
    if (size > m_maximum - m_taken) {
        return false;
    }
    m_taken += size;
    return true;
}

void* ParserMemory::Allocate(std::size_t size) noexcept
{
    ParserMemory& memory = *CURRENT_MEMORY;
    if (!memory.Take(size)) {
        return nullptr;
    }
    auto* const header = static_cast<Header*>(std::malloc(sizeof(Header) + size + SLACK));
    if (!header) {
        memory.m_isSystemExhausted = true;
        memory.m_taken -= size;
        return nullptr;
    }
    PreferLargePages(header, size); // of converted text the buffer holds all
    *header = {&memory, size};
    return header + 1;
}

void* ParserMemory::Reallocate(void* block, std::size_t size) noexcept
{
    if (!block) {
        return Allocate(size);
    }
    Header* const header = HeaderOf(block);
    ParserMemory& memory = *header->owner;
    const std::size_t oldSize = header->size;
    if (size > oldSize && !memory.Take(size - oldSize)) {
        return nullptr;
    }
    auto* const moved = static_cast<Header*>(std::realloc(header, sizeof(Header) + size + SLACK));
    if (!moved) {
        memory.m_isSystemExhausted = true;
        memory.m_taken -= size > oldSize ? size - oldSize : 0;
        return nullptr;
    }
    memory.m_taken -= size < oldSize ? oldSize - size : 0;
    moved->size = size;
    return moved + 1;
}

void ParserMemory::Free(void* block) noexcept
{
    if (block) {
        Header* const header = HeaderOf(block);
        header->owner->m_taken -= header->size;
        std::free(header);
    }
}

} // namespace ZrXmlLib16
