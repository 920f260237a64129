// SPDX-License-Identifier: MIT
#ifndef XML_CLASSMEMORY_H
#define XML_CLASSMEMORY_H

#include "core/NillableMemory.h"
#include "xml/Arena.h"

#include <cstddef>
#include <cstdint>
#include <new>
#include <typeinfo>

namespace ZrXmlLib16 {

/// What the read walk has learnt about the classes of the objects it fills from one document, so that it asks once per
/// class instead of once per object.
class ClassMemory {
public:
    /// A class is a type of objects together with their class record. Lies in the document's arena.
    struct Entry {
        const std::type_info* type;
        const void* classInfo;
        Entry* next;
        const wchar_t* targetNamespace = nullptr; // null as long as nobody asked
        bool knowsNillable = false;
        CNillablePlace nillable = {};
    };

    explicit ClassMemory(Arena& arena) noexcept
        : m_arena(arena)
    {
    }

    /// The entry of a class; stays where it is as long as the memory lives.
    Entry& Find(const std::type_info& type, const void* classInfo)
    {
        constexpr std::uint64_t HASH_MULTIPLIER = 0x9E3779B97F4A7C15u;
        const std::uint64_t key = reinterpret_cast<std::uintptr_t>(&type) ^ reinterpret_cast<std::uintptr_t>(classInfo);
        Entry*& bucket = m_buckets[(key * HASH_MULTIPLIER) >> (64 - INDEX_BITS)];
        for (Entry* entry = bucket; entry; entry = entry->next) {
            if (entry->type == &type && entry->classInfo == classInfo) {
                return *entry;
            }
        }
        bucket = new (m_arena.Allocate(sizeof(Entry), alignof(Entry))) Entry{&type, classInfo, bucket};
        return *bucket;
    }

    Arena& GetArena() noexcept { return m_arena; }

private:
    static constexpr unsigned INDEX_BITS = 5;

    Arena& m_arena;
    Entry* m_buckets[std::size_t(1) << INDEX_BITS] = {};
};

} // namespace ZrXmlLib16

#endif
