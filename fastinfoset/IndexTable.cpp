// SPDX-License-Identifier: MIT
#include "fastinfoset/IndexTable.h"

#include "values/HashSecret.h"

#include <algorithm>
#include <cstring>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t TEXT_CAPACITY = 16384;
constexpr std::uint64_t SPACE_MULTIPLIER = 0xD6E8FEB86659FD93;

std::uint64_t LoadPair(const wchar_t* text)
{
    std::uint64_t characters;
    static_assert(sizeof characters == 2 * sizeof(wchar_t), "wide characters have four octets");
    std::memcpy(&characters, text, sizeof characters);
    return characters;
}

/// Takes four characters at a time; the last four overlap those before them.
std::uint64_t HashText(std::wstring_view text)
{
    const HashSecret& secret = GetHashSecret();
    const wchar_t* position = text.data();
    const std::size_t length = text.size();
    std::uint64_t hash = secret.seed ^ length;
    if (length >= 4) {
        const wchar_t* const last = position + length - 4;
        for (; position < last; position += 4) {
            hash = MultiplyAndFold(LoadPair(position) ^ hash, LoadPair(position + 2) ^ secret.multiplier);
        }
        return MultiplyAndFold(LoadPair(last) ^ hash, LoadPair(last + 2) ^ secret.multiplier);
    }
    if (length >= 2) {
        return MultiplyAndFold(LoadPair(position) ^ hash, LoadPair(position + length - 2) ^ secret.multiplier);
    }
    return length == 0 ? hash : MultiplyAndFold(static_cast<std::uint32_t>(*position) ^ hash, secret.multiplier);
}

// Most texts are shorter than the call of a library function takes.
bool AreEqual(const wchar_t* left, const wchar_t* right, std::size_t n)
{
    std::size_t i = 0;
    for (; i + 2 <= n; i += 2) {
        if (LoadPair(left + i) != LoadPair(right + i)) {
            return false;
        }
    }
    return i == n || left[i] == right[i];
}

} // namespace

IndexTable::Key::Key(std::uint32_t space, const std::wstring& text)
    : m_text(text)
    , m_textHash(HashText(m_text))
    , m_isStored(false)
{
    Place(space);
}

IndexTable::Key IndexTable::Key::InSpace(std::uint32_t space) const
{
    Key key(*this);
    key.Place(space);
    return key;
}

void IndexTable::Key::Place(std::uint32_t space)
{
    m_space = space;
    m_hash = static_cast<std::uint32_t>((m_textHash + space) * SPACE_MULTIPLIER >> 32);
}

IndexTable::IndexTable()
    : m_slots(m_firstSlots)
    , m_capacity(FIRST_CAPACITY)
    , m_entries(m_firstEntries)
    , m_taken(0)
    , m_textPosition(m_firstTexts)
    , m_textCapacity(FIRST_TEXT_CAPACITY)
    , m_firstSlots{}
{
}

std::uint32_t IndexTable::Find(Key& key) const
{
    const std::size_t mask = m_capacity - 1;
    for (std::size_t position = key.m_hash & mask;; position = (position + 1) & mask) {
        const Slot& slot = m_slots[position];
        if (slot.entry == 0) {
            return 0;
        }
        if (slot.hash != key.m_hash) {
            continue;
        }
        const Entry& entry = m_entries[slot.entry];
        if (entry.space == key.m_space && entry.textLength == key.m_text.size()
            && AreEqual(entry.text, key.m_text.data(), entry.textLength)) {
            key.m_text = {entry.text, entry.textLength};
            key.m_isStored = true;
            return entry.index;
        }
    }
}

void IndexTable::Insert(Key& key, std::uint32_t index)
{
    if (m_taken == m_capacity / 2) {
        Grow();
    }
    if (!key.m_isStored) {
        key.m_text = Store(key.m_text);
        key.m_isStored = true;
    }
    // A text of more than 32 bits of characters is never found again.
    const auto length = static_cast<std::uint32_t>(key.m_text.size());
    ++m_taken;
    m_entries[m_taken] = {key.m_text.data(), length, key.m_space, index};
    FreeSlot(key.m_hash) = {key.m_hash, m_taken};
}

IndexTable::Slot& IndexTable::FreeSlot(std::uint32_t hash)
{
    const std::size_t mask = m_capacity - 1;
    std::size_t position = hash & mask;
    while (m_slots[position].entry != 0) {
        position = (position + 1) & mask;
    }
    return m_slots[position];
}

void IndexTable::Grow()
{
    const Slot* const previous = m_slots;
    const Slot* const previousEnd = m_slots + m_capacity;
    std::unique_ptr<Entry[]> entries(new Entry[1 + m_capacity]);
    std::unique_ptr<Slot[]> grown(new Slot[2 * m_capacity]());
    std::copy_n(m_entries + 1, m_taken, entries.get() + 1);
    m_entries = entries.get();
    m_grownEntries.swap(entries);
    m_slots = grown.get();
    m_capacity *= 2;
    for (const Slot* slot = previous; slot != previousEnd; ++slot) {
        if (slot->entry != 0) {
            FreeSlot(slot->hash) = *slot;
        }
    }
    m_grownSlots.swap(grown);
}

std::wstring_view IndexTable::Store(std::wstring_view text)
{
    if (text.size() > m_textCapacity) {
        const std::size_t capacity = std::max(text.size(), TEXT_CAPACITY);
        m_moreTexts.emplace_back(new wchar_t[capacity]);
        m_textPosition = m_moreTexts.back().get();
        m_textCapacity = capacity;
    }
    std::copy(text.begin(), text.end(), m_textPosition);
    const std::wstring_view stored(m_textPosition, text.size());
    m_textPosition += text.size();
    m_textCapacity -= text.size();
    return stored;
}

} // namespace ZrXmlLib16
