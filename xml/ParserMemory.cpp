// SPDX-License-Identifier: MIT
#include "xml/ParserMemory.h"

#include "streams/LargePages.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace ZrXmlLib16 {

namespace {

// The parser's memory functions get no argument that tells whom they work for.
thread_local ParserMemory* CURRENT_MEMORY = nullptr;

std::size_t AlignUp(std::size_t size)
{
    constexpr std::size_t ALIGNMENT = alignof(std::max_align_t);
    return (size + ALIGNMENT - 1) / ALIGNMENT * ALIGNMENT;
}

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

/// Null when there is too little room left.
ParserMemory::Header* ParserMemory::FindRoom(std::size_t size) noexcept
{
    const std::size_t rest = static_cast<std::size_t>(m_room + sizeof(m_room) - m_free);
    if (size > rest || sizeof(Header) + AlignUp(size) + SLACK > rest) {
        return nullptr;
    }
    auto* const header = reinterpret_cast<Header*>(m_free);
    m_free += sizeof(Header) + AlignUp(size);
    return header;
}

bool ParserMemory::IsInRoom(const Header* header) const noexcept
{
    const auto address = reinterpret_cast<std::uintptr_t>(header);
    return address - reinterpret_cast<std::uintptr_t>(m_room) < sizeof(m_room);
}

void* ParserMemory::Allocate(std::size_t size) noexcept
{
    return CURRENT_MEMORY->AllocateBlock(size);
}

void* ParserMemory::AllocateBlock(std::size_t size) noexcept
{
    if (!Take(size)) {
        return nullptr;
    }
    Header* header = FindRoom(size);
    if (!header) {
        header = static_cast<Header*>(std::malloc(sizeof(Header) + size + SLACK));
    }
    if (!header) {
        m_isSystemExhausted = true;
        m_taken -= size;
        return nullptr;
    }
    PreferLargePages(header, size); // of converted text the buffer holds all
    *header = {this, size};
    return header + 1;
}

void* ParserMemory::MoveFromRoom(Header* header, std::size_t size) noexcept
{
    void* const moved = AllocateBlock(size);
    if (moved) {
        std::memcpy(moved, header + 1, std::min(header->size, size));
        Free(header + 1);
    }
    return moved;
}

void* ParserMemory::Reallocate(void* block, std::size_t size) noexcept
{
    if (!block) {
        return Allocate(size);
    }
    Header* const header = HeaderOf(block);
    ParserMemory& memory = *header->owner;
    if (memory.IsInRoom(header)) {
        return memory.MoveFromRoom(header, size);
    }
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
    if (!block) {
        return;
    }
    Header* const header = HeaderOf(block);
    ParserMemory& memory = *header->owner;
    memory.m_taken -= header->size;
    if (!memory.IsInRoom(header)) {
        std::free(header);
    } else if (static_cast<unsigned char*>(block) + AlignUp(header->size) == memory.m_free) {
        memory.m_free = reinterpret_cast<unsigned char*>(header);
    }
}

} // namespace ZrXmlLib16
