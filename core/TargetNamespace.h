// SPDX-License-Identifier: MIT
#ifndef CORE_TARGETNAMESPACE_H
#define CORE_TARGETNAMESPACE_H

#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "xml/NodeAccess.h"

#include <memory>
#include <string>

namespace ZrXmlLib16 {

/// The target namespace of an object's class. The document that the object is read from remembers it for the other
/// objects of the class; an element that was built by hand remembers nothing.
class CTargetNamespace {
public:
    CTargetNamespace(const CXmlGeneratedClass& object, const void* classInfo, const CXmlElement& element)
    {
        ClassMemory::Entry* const known = NodeAccess::FindClass(element, typeid(object), classInfo);
        m_text = known && known->targetNamespace ? known->targetNamespace : Ask(object, element, known);
    }
    CTargetNamespace(const CTargetNamespace&) = delete;
    CTargetNamespace& operator=(const CTargetNamespace&) = delete;

    /// Valid as long as this object.
    const wchar_t* GetText() const { return m_text; }

private:
    const wchar_t* Ask(const CXmlGeneratedClass& object, const CXmlElement& element, ClassMemory::Entry* known);

    const wchar_t* m_text;
    std::unique_ptr<const std::wstring> m_own; // null when the document has it
};

} // namespace ZrXmlLib16

#endif
