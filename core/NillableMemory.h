// SPDX-License-Identifier: MIT
#ifndef CORE_NILLABLEMEMORY_H
#define CORE_NILLABLEMEMORY_H

#include <cstddef>
#include <typeinfo>

namespace ZrXmlLib16 {

class CXmlGeneratedClass;
class INillable;

/// Where the INillable lies in the objects of one type.
class CNillablePlace {
public:
    /// In no object.
    CNillablePlace() = default;
    explicit CNillablePlace(CXmlGeneratedClass& object);

    /// Null when the object is none.
    INillable* In(CXmlGeneratedClass& object) const;

private:
    bool m_exists = false;
    std::ptrdiff_t m_offset = 0;
};

/// Finds the INillable of an object without asking the same type twice: its place is the same in all objects of a type.
/// Small and forgetful. Belongs to one walk at a time.
class CNillableMemory {
public:
    /// Null when the object is none.
    INillable* Find(CXmlGeneratedClass& object);
    const INillable* Find(const CXmlGeneratedClass& object) { return Find(const_cast<CXmlGeneratedClass&>(object)); }

private:
    struct Entry {
        const std::type_info* type;
        CNillablePlace place;
    };
    static constexpr unsigned INDEX_BITS = 6;

    Entry m_entries[std::size_t(1) << INDEX_BITS] = {};
};

} // namespace ZrXmlLib16

#endif
