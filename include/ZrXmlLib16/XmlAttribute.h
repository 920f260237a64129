// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLATTRIBUTE_H
#define ZRXMLLIB16_XMLATTRIBUTE_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/NodeText.h"

#include <cstddef>
#include <memory>
#include <string>

namespace ZrXmlLib16 {

class CXmlElement;
class NodePool;
struct XmlName;

/// Deletes a name that belongs to a single node and leaves alone one that the nodes of a document share.
struct XmlNameRelease {
    /// Called by the owner of the name.
    void operator()(const XmlName* name) const noexcept;
};

/// An attribute of an element of a CXmlDocument. Its element owns it.
class ZRXML_API CXmlAttribute {
public:
    /// @param owner not owned; null for an attribute of its own, which is printed as if it belonged to no document.
    /// Does not enter the attribute into the owner's list: see CXmlElement::AddAttribute.
    CXmlAttribute(
        CXmlElement* owner, const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri);
    virtual ~CXmlAttribute();
    CXmlAttribute(const CXmlAttribute&) = delete;
    CXmlAttribute& operator=(const CXmlAttribute&) = delete;

    /// Empty for no namespace.
    const std::wstring& GetNamespaceURI() const;
    /// Name without prefix; with it under SchemaType_DTD.
    const std::wstring& GetLocalName() const;
    /// The value after the parser's normalisation.
    const std::wstring& GetValue() const;
    /// The owner's path, "/", the prefix and ":" when there is one, "@" and the local name: `/order/AA:@id`.
    std::wstring GetXPath() const;
    /// Whether the attribute belongs to the XML infrastructure (xmlns, type, schemaLocation, noNamespaceSchemaLocation
    /// in the instance namespace or the namespace of declarations).
    bool IsNamespaceAttribute() const;
    /// Whether the attribute is "nil" in one of these two namespaces.
    bool IsNilAttribute() const;

    /// Attributes of a parsed document lie in its memory, others on the heap.
    static void* operator new(std::size_t size);
    /// Frees either kind.
    static void operator delete(void* node);

private:
    friend class CXmlElement;
    friend class NodeAccess;
    friend class TreeBuilder;

    /// An attribute in the memory of a document.
    CXmlAttribute(CXmlElement* owner, const XmlName& name) noexcept;
    DocumentStorage* GetStorage() const;
    static void* operator new(std::size_t size, NodePool& pool);
    static void operator delete(void* node, NodePool& pool);

    CXmlElement* m_owner;
    std::unique_ptr<const XmlName, XmlNameRelease> m_name;
    CXmlAttribute* m_next; // of the same element, in a ring
    mutable NodeText m_value;
};

} // namespace ZrXmlLib16

#endif
