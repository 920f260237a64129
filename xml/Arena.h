// SPDX-License-Identifier: MIT
#ifndef XML_ARENA_H
#define XML_ARENA_H

#include <cstddef>
#include <cstdint>

namespace ZrXmlLib16 {

/// Memory that is handed out piece by piece and given back as a whole. Never destroys what lies in it.
class Arena {
public:
    /// Octets behind every piece that can be read, though they mean nothing.
    static constexpr std::size_t SLACK = 16;

    /// @param expectedSize how much will be needed, as far as that is known; it is taken in one piece.
    explicit Arena(std::size_t expectedSize) noexcept
        : m_expectedSize(expectedSize)
    {
    }
    ~Arena();
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    /// @param alignment a power of two, at most that of operator new.
    void* Allocate(std::size_t size, std::size_t alignment)
    {
        const std::size_t padding = PaddingOf(alignment);
        if (size + padding > static_cast<std::size_t>(m_end - m_free)) {
            return AllocateFromNewChunk(size);
        }
        unsigned char* const start = m_free + padding;
        m_free = start + size;
        return start;
    }

    /// Makes a piece longer in its place: only the newest one, and only while there is room behind it.
    /// @param pieceEnd the end of the piece.
    bool Extend(const void* pieceEnd, std::size_t extra) noexcept
    {
        if (pieceEnd != m_free || extra > static_cast<std::size_t>(m_end - m_free)) {
            return false;
        }
        m_free += extra;
        return true;
    }

    /// Room for one more piece, of which it is not known yet how much will be needed: see Take. Null when the newest
    /// chunk has less.
    template <class T> T* FindRoom(std::size_t count) const noexcept
    {
        const std::size_t padding = PaddingOf(alignof(T));
        const bool fits = count * sizeof(T) + padding <= static_cast<std::size_t>(m_end - m_free);
        return fits ? reinterpret_cast<T*>(m_free + padding) : nullptr;
    }
    /// Makes a piece of the room that was found last.
    void Take(void* pieceEnd) noexcept { m_free = static_cast<unsigned char*>(pieceEnd); }

private:
    /// What a chunk begins with; the pieces lie behind it.
    struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Chunk {
        Chunk* older;
    };

    std::size_t PaddingOf(std::size_t alignment) const noexcept
    {
        return (~reinterpret_cast<std::uintptr_t>(m_free) + 1) & (alignment - 1);
    }
    [[gnu::noinline]] void* AllocateFromNewChunk(std::size_t size);

    unsigned char* m_free = nullptr; // the untouched rest of the newest chunk
    unsigned char* m_end = nullptr;
    const std::size_t m_expectedSize;
    std::size_t m_total = 0; // bytes of all chunks
    Chunk* m_newest = nullptr;
};

} // namespace ZrXmlLib16

#endif
