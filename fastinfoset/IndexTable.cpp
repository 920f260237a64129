// SPDX-License-Identifier: MIT
#include "fastinfoset/IndexTable.h"

#include <cstring>
#include <cwchar>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_CAPACITY = 128;
constexpr std::size_t FIRST_TEXT_CAPACITY = 512;
constexpr std::uint64_t MULTIPLIER = 0x9E3779B97F4A7C15;

std::uint64_t Mix(std::uint64_t hash, std::uint64_t bits)
{
    hash = (hash ^ bits) * MULTIPLIER;
    return hash ^ hash >> 32;
}

std::uint32_t Hash(std::uint32_t space, const std::wstring& text)
{
    const wchar_t* position = text.data();
    std::size_t rest = text.size();
    std::uint64_t hash = Mix(space, rest);
    for (; rest >= 2; rest -= 2, position += 2) {
        std::uint64_t characters;
        static_assert(sizeof characters == 2 * sizeof(wchar_t), "wide characters have four octets");
        std::memcpy(&characters, position, sizeof characters);
        hash = Mix(hash, characters);
    }
    if (rest != 0) {
        hash = Mix(hash, static_cast<std::uint32_t>(*position));
    }
    return static_cast<std::uint32_t>(hash);
}

} // namespace

IndexTable::Key::Key(std::uint32_t space, const std::wstring& text)
    : m_text(text)
    , m_space(space)
    , m_hash(Hash(space, text))
{
}

IndexTable::IndexTable()
    : m_slots(FIRST_CAPACITY)
    , m_taken(0)
{
    m_texts.reserve(FIRST_TEXT_CAPACITY);
}

std::uint32_t IndexTable::Find(const Key& key) const
{
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t position = key.m_hash & mask;; position = (position + 1) & mask) {
        const Slot& slot = m_slots[position];
        if (slot.index == 0) {
            return 0;
        }
        if (slot.hash == key.m_hash && slot.space == key.m_space && slot.textLength == key.m_text.size()
            && std::wmemcmp(m_texts.data() + slot.textBegin, key.m_text.data(), slot.textLength) == 0) {
            return slot.index;
        }
    }
}

void IndexTable::Insert(const Key& key, std::uint32_t index)
{
    if (2 * (m_taken + 1) > m_slots.size()) {
        Grow();
    }
    const std::size_t textBegin = m_texts.size();
    m_texts.append(key.m_text);
    FreeSlot(key.m_hash) = {textBegin, key.m_text.size(), key.m_hash, key.m_space, index};
    ++m_taken;
}

IndexTable::Slot& IndexTable::FreeSlot(std::uint32_t hash)
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t position = hash & mask;
    while (m_slots[position].index != 0) {
        position = (position + 1) & mask;
    }
    return m_slots[position];
}

void IndexTable::Grow()
{
    std::vector<Slot> previous(2 * m_slots.size());
    previous.swap(m_slots);
    for (const Slot& slot : previous) {
        if (slot.index != 0) {
            FreeSlot(slot.hash) = slot;
        }
    }
}

} // namespace ZrXmlLib16
