// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_INDEXTABLE_H
#define FASTINFOSET_INDEXTABLE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Hash table from texts to indexes. Each text belongs to a numbered space, so that one table serves all vocabulary
/// tables of a document and a small document pays for one only. The texts are copied. Entries are never removed.
class IndexTable {
public:
    class Key {
    public:
        /// @param text borrowed.
        Key(std::uint32_t space, const std::wstring& text);

    private:
        friend class IndexTable;

        const std::wstring& m_text;
        std::uint32_t m_space;
        std::uint32_t m_hash;
    };

    IndexTable();

    /// 0 when the key is not there.
    std::uint32_t Find(const Key& key) const;
    /// @param key must not be there yet.
    /// @param index not 0.
    void Insert(const Key& key, std::uint32_t index);

private:
    struct Slot {
        std::size_t textBegin;
        std::size_t textLength;
        std::uint32_t hash;
        std::uint32_t space;
        std::uint32_t index; // 0: the slot is free
    };

    Slot& FreeSlot(std::uint32_t hash);
    void Grow();

    std::vector<Slot> m_slots; // a power of two, at most half of them taken
    std::size_t m_taken;
    std::wstring m_texts; // all of them, one after the other
};

} // namespace ZrXmlLib16

#endif
