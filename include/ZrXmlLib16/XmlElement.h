// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLELEMENT_H
#define ZRXMLLIB16_XMLELEMENT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlAttribute.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

class CXmlDocument;
class DocumentStorage;

/// A place in a text, both parts from 1; both 0 when it is not known.
struct TextPosition {
    std::uint32_t line;   ///< CR LF, CR and LF end one
    std::uint32_t column; ///< code units of the text's encoding from the start of the line
};

/// An element of a CXmlDocument: name, attributes, children, and all character data directly inside it as one text.
///
/// An element owns its attributes and children. Trees may be of any depth: nothing here recurses. An element that was
/// taken out of the tree with RemoveLastChildElement belongs to the caller, who deletes it; it may outlive its document
/// only to be deleted or read, not for prefixes and paths. A document and its elements belong to one thread at a time,
/// for reading too.
class ZRXML_API CXmlElement {
public:
    /// An empty element without a name.
    /// @param document not owned, may be null: such an element knows no prefixes.
    /// @param parent not owned, null for a root. The parent's list of children does not change: see
    /// CreateNewChildElement.
    CXmlElement(CXmlDocument* document, CXmlElement* parent);
    virtual ~CXmlElement();
    CXmlElement(const CXmlElement&) = delete;
    CXmlElement& operator=(const CXmlElement&) = delete;

    /// Appends a child without a name and returns it; this element owns it.
    CXmlElement* CreateNewChildElement();
    /// Takes the last child out of the tree and hands it to the caller; null when there is none.
    CXmlElement* RemoveLastChildElement();
    /// Appends an attribute, also of a name that is there already.
    void AddAttribute(const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri);
    /// Appends the text as it is. Null is empty.
    void AppendText(const wchar_t* text, unsigned long length);
    void AppendText(const std::wstring& text);
    /// Local name.
    void SetElementName(const std::wstring& name);
    /// Empty for no namespace.
    void SetNamespace(const std::wstring& namespaceUri);
    /// First child, null when there is none.
    CXmlElement* GetFirstElement() const;
    /// Next child of the same parent, null for the last one.
    CXmlElement* GetNextSiblingElement() const;
    /// Empty for no namespace.
    const std::wstring& GetNamespaceURI() const;
    /// Name without prefix; with it under SchemaType_DTD.
    const std::wstring& GetLocalName() const;
    /// The text directly inside the element.
    const std::wstring& GetText() const;
    /// In document order.
    const std::vector<CXmlAttribute*>& GetAttributes() const;
    /// Value of the first attribute of that name; one shared empty text when there is none.
    const std::wstring& GetAttribute(const std::wstring& localName, const std::wstring& namespaceUri) const;
    /// Prefix, ":" and local name, or the local name alone when the document knows no prefix for the namespace.
    std::wstring GetQName() const;
    /// The qualified name, followed by the 1-based position in brackets when siblings have the same one.
    std::wstring GetNameWithPredicate() const;
    /// The way from the root, such as /order/item[2]/price.
    std::wstring GetXPath() const;

    /// @{
    /// Where the "<" of the start tag stands in the text: line and column from 1, columns in code units of the text's
    /// encoding (octets in UTF-8, each 16 bits in UTF-16). CR LF, CR and LF end a line; a byte-order mark is in no
    /// column. For an element out of an internal entity the place of the reference. Both 0 when it is not known: the
    /// element was read from Fast Infoset or JSON or built by hand, or the number is above 32 bits.
    unsigned long GetLine() const;
    unsigned long GetColumn() const;
    /// @}

    /// Null for a root.
    CXmlElement* GetParent() const;
    /// Null for an element that was made without one.
    CXmlDocument* GetDocument() const;

    /// Elements of a parsed document lie in its memory, others on the heap.
    static void* operator new(std::size_t size);
    /// Frees either kind.
    static void operator delete(void* node);

private:
    friend class CXmlDocument;
    friend class NodeAccess;
    friend class TreeBuilder;

    /// An element in the memory of a document.
    CXmlElement(CXmlElement* parent, const XmlName& name) noexcept;
    static void* operator new(std::size_t size, NodePool& pool);
    static void operator delete(void* node, NodePool& pool);

    CXmlElement* AppendChild(CXmlElement* child) noexcept
    {
        if (m_firstChild) {
            CXmlElement* const last = m_firstChild->m_previousSibling;
            child->m_previousSibling = last;
            last->m_nextSibling = child;
            m_firstChild->m_previousSibling = child;
        } else {
            child->m_previousSibling = child;
            m_firstChild = child;
        }
        return child;
    }
    CXmlElement* GetLastElement() const { return m_firstChild ? m_firstChild->m_previousSibling : nullptr; }
    CXmlAttribute* FindAttribute(const std::wstring& localName, const std::wstring& namespaceUri) const;
    void AppendAttribute(std::unique_ptr<CXmlAttribute> attribute);
    void LinkAttribute(CXmlAttribute* attribute) noexcept
    {
        if (m_lastAttribute) {
            attribute->m_next = m_lastAttribute->m_next;
            m_lastAttribute->m_next = attribute;
        }
        m_lastAttribute = attribute;
    }
    void DeleteAttributes() noexcept;
    void AddParsedAttribute(const XmlName& name, const unsigned short* value, std::size_t length);
    void AddNamedAttribute(const XmlName& name, const std::wstring& value);
    DocumentStorage* GetStorage() const;
    void SetName(const std::wstring& namespaceUri, const std::wstring& localName);
    bool HasSameQName(const CXmlElement& sibling) const;

    union {
        CXmlDocument* m_document; // without a storage, which else knows it
        TextPosition m_position;  // with a storage
    };
    CXmlElement* m_parent;
    CXmlElement* m_nextSibling;
    CXmlElement* m_previousSibling; // of the first child: the last one
    CXmlElement* m_firstChild;
    std::unique_ptr<const XmlName, XmlNameRelease> m_name;
    CXmlAttribute* m_lastAttribute; // whose next is the first
    mutable NodeText m_text;
};

} // namespace ZrXmlLib16

#endif
