// SPDX-License-Identifier: MIT
#include "core/NillableMemory.h"

#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"

#include <cstdint>

namespace ZrXmlLib16 {

INillable* CNillableMemory::Find(CXmlGeneratedClass& object)
{
    constexpr std::uint64_t HASH_MULTIPLIER = 0x9E3779B97F4A7C15u;
    const std::type_info& type = typeid(object);
    Entry& entry = m_entries[(reinterpret_cast<std::uintptr_t>(&type) * HASH_MULTIPLIER) >> (64 - INDEX_BITS)];
    char* const start = reinterpret_cast<char*>(&object);
    if (entry.type != &type) {
        INillable* const nillable = dynamic_cast<INillable*>(&object);
        const std::ptrdiff_t offset = nillable ? reinterpret_cast<char*>(nillable) - start : 0;
        entry = Entry{&type, offset, nillable != nullptr};
    }
    return entry.isNillable ? reinterpret_cast<INillable*>(start + entry.offset) : nullptr;
}

} // namespace ZrXmlLib16
