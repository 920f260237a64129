// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_INDEXTABLE_H
#define FASTINFOSET_INDEXTABLE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ZrXmlLib16 {

/// Hash table from texts to indexes. Each text belongs to a numbered space, so that one table serves all vocabulary
/// tables of a document. The texts are copied. Entries are never removed. What a small document needs is part of the
/// object.
class IndexTable {
public:
    /// A text in a space. It refers to the caller's text until it was found or inserted, then to the table's copy.
    class Key {
    public:
        Key(std::uint32_t space, const std::wstring& text);
        /// The same text in another space.
        Key InSpace(std::uint32_t space) const;
        std::wstring_view GetText() const { return m_text; }

    private:
        friend class IndexTable;

        void Place(std::uint32_t space);

        std::wstring_view m_text;
        std::uint64_t m_textHash;
        std::uint32_t m_space;
        std::uint32_t m_hash;
        bool m_isStored;
    };

    IndexTable();
    IndexTable(const IndexTable&) = delete;
    IndexTable& operator=(const IndexTable&) = delete;

    /// 0 when the key is not there.
    std::uint32_t Find(Key& key) const;
    /// @param key must not be there yet.
    /// @param index not 0.
    void Insert(Key& key, std::uint32_t index);

private:
    static constexpr std::size_t FIRST_CAPACITY = 256;
    static constexpr std::size_t FIRST_TEXT_CAPACITY = 1024;

    struct Entry {
        const wchar_t* text;
        std::uint32_t textLength;
        std::uint32_t space;
        std::uint32_t index;
    };
    /// What a search looks at first is small, because that of a large table lies in no cache.
    struct Slot {
        std::uint32_t hash;
        std::uint32_t entry; // 0: the slot is free
    };

    Slot& FreeSlot(std::uint32_t hash);
    void Grow();
    std::wstring_view Store(std::wstring_view text);

    Slot* m_slots;
    std::size_t m_capacity; // a power of two
    Entry* m_entries;       // half as many, behind one that is not used
    std::uint32_t m_taken;
    std::unique_ptr<Slot[]> m_grownSlots;
    std::unique_ptr<Entry[]> m_grownEntries;
    wchar_t* m_textPosition; // of the next text
    std::size_t m_textCapacity;
    std::vector<std::unique_ptr<wchar_t[]>> m_moreTexts;
    Slot m_firstSlots[FIRST_CAPACITY];
    Entry m_firstEntries[1 + FIRST_CAPACITY / 2];
    wchar_t m_firstTexts[FIRST_TEXT_CAPACITY];
};

} // namespace ZrXmlLib16

#endif
