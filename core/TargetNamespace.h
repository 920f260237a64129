// SPDX-License-Identifier: MIT
#ifndef CORE_TARGETNAMESPACE_H
#define CORE_TARGETNAMESPACE_H

#include <string>

namespace ZrXmlLib16 {

class CXmlElement;
class CXmlGeneratedClass;

/// The target namespace of an object's class. The document that the object is read from remembers it for the other
/// objects of the class; an element that was built by hand remembers nothing.
class CTargetNamespace {
public:
    CTargetNamespace(const CXmlGeneratedClass& object, const void* classInfo, const CXmlElement& element);
    CTargetNamespace(const CTargetNamespace&) = delete;
    CTargetNamespace& operator=(const CTargetNamespace&) = delete;

    /// Valid as long as this object.
    const wchar_t* GetText() const { return m_text; }

private:
    const wchar_t* m_text;
    std::wstring m_own;
};

} // namespace ZrXmlLib16

#endif
