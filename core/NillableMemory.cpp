// SPDX-License-Identifier: MIT
#include "core/NillableMemory.h"

#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"

#include <cstdint>

namespace ZrXmlLib16 {

CNillablePlace::CNillablePlace(CXmlGeneratedClass& object)
{
    if (INillable* const nillable = dynamic_cast<INillable*>(&object)) {
        m_exists = true;
        m_offset = reinterpret_cast<char*>(nillable) - reinterpret_cast<char*>(&object);
    }
}

INillable* CNillablePlace::In(CXmlGeneratedClass& object) const
{
    return m_exists ? reinterpret_cast<INillable*>(reinterpret_cast<char*>(&object) + m_offset) : nullptr;
}

INillable* CNillableMemory::Find(CXmlGeneratedClass& object)
{
    constexpr std::uint64_t HASH_MULTIPLIER = 0x9E3779B97F4A7C15u;
    const std::type_info& type = typeid(object);
    Entry& entry = m_entries[(reinterpret_cast<std::uintptr_t>(&type) * HASH_MULTIPLIER) >> (64 - INDEX_BITS)];
    if (entry.type != &type) {
        entry = Entry{&type, CNillablePlace(object)};
    }
    return entry.place.In(object);
}

} // namespace ZrXmlLib16
