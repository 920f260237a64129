// SPDX-License-Identifier: MIT
#ifndef XML_PARSERMEMORY_H
#define XML_PARSERMEMORY_H

#include <cstddef>

namespace ZrXmlLib16 {

/// The memory of one parser, up to a limit. The parser writes the namespace of every prefixed attribute out before it
/// reports the start tag: a long namespace and many attributes of one tag would fill the memory.
///
/// A parser starts with a few dozen small blocks: as long as there is room they lie in this object, most of which is
/// that room, and belongs on the stack.
///
/// Outlives the parser. What the parser takes while a Scope of its memory exists in the thread counts for it.
class ParserMemory {
public:
    class Scope {
    public:
        explicit Scope(ParserMemory& memory) noexcept;
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        ParserMemory* const m_outer;
    };

    explicit ParserMemory(std::size_t maximum) noexcept
        : m_maximum(maximum)
    {
    }
    ParserMemory(const ParserMemory&) = delete;
    ParserMemory& operator=(const ParserMemory&) = delete;

    /// Whether the system had no memory. Any other shortage is that of a limit: this one, or one that newer parsers
    /// keep themselves.
    bool IsSystemExhausted() const noexcept { return m_isSystemExhausted; }

    /// Octets behind the end of every block that can be read, though they mean nothing.
    static constexpr std::size_t SLACK = 32;

    // The functions that the parser calls. Null when there is no memory or the limit is reached.
    static void* Allocate(std::size_t size) noexcept;
    static void* Reallocate(void* block, std::size_t size) noexcept;
    static void Free(void* block) noexcept;

private:
    struct Header {
        ParserMemory* owner;
        std::size_t size;
    };
    static Header* HeaderOf(void* block) noexcept;

    bool Take(std::size_t size) noexcept;
    void* AllocateBlock(std::size_t size) noexcept;
    void* MoveFromRoom(Header* header, std::size_t size) noexcept;
    Header* FindRoom(std::size_t size) noexcept;
    bool IsInRoom(const Header* header) const noexcept;

    const std::size_t m_maximum;
    std::size_t m_taken = 0;
    bool m_isSystemExhausted = false;
    // Used from its beginning to its end; only the newest block comes back.
    unsigned char* m_free = m_room;
    alignas(std::max_align_t) unsigned char m_room[16384];
};

} // namespace ZrXmlLib16

#endif
