// SPDX-License-Identifier: MIT
#ifndef CORE_CLASSTRAITS_H
#define CORE_CLASSTRAITS_H

#include "xml/ClassMemory.h"

#include <string>

namespace ZrXmlLib16 {

class CXmlElement;
class CXmlGeneratedClass;
class INillable;

/// The answers of an object that are the same for all objects of its class, remembered by the document that the object
/// is read from. An element that was built by hand remembers nothing: then every object is asked.
class CClassTraits {
public:
    CClassTraits(CXmlGeneratedClass& object, const void* classInfo, const CXmlElement& element);
    CClassTraits(const CClassTraits&) = delete;
    CClassTraits& operator=(const CClassTraits&) = delete;

    /// The object as INillable, null when it is none.
    INillable* GetNillable() const;
    /// Valid as long as this object.
    const wchar_t* GetTargetNamespace();

private:
    CXmlGeneratedClass& m_object;
    ClassMemory* m_memory;
    ClassMemory::Entry* m_entry; // null without a memory
    std::wstring m_ownTarget;
};

} // namespace ZrXmlLib16

#endif
