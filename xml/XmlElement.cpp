// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlElement.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "xml/DocumentStorage.h"

#include <utility>

namespace ZrXmlLib16 {

CXmlElement::CXmlElement(CXmlDocument* document, CXmlElement* parent)
    : CXmlElement(document, parent, new XmlName(std::wstring(), std::wstring(), nullptr))
{
}

CXmlElement::CXmlElement(CXmlDocument* document, CXmlElement* parent, const XmlName* name)
    : m_document(document)
    , m_parent(parent)
    , m_nextSibling(nullptr)
    , m_firstChild(nullptr)
    , m_lastChild(nullptr)
    , m_name(name)
    , m_previousSibling(nullptr)
{
}

CXmlElement::~CXmlElement()
{
    for (CXmlAttribute* attribute : m_attributes) {
        delete attribute;
    }
    // Every element gives its children to the list that is being worked off before it is deleted, so that no depth
    // costs stack.
    CXmlElement* pending = std::exchange(m_firstChild, nullptr);
    while (pending) {
        CXmlElement* const current = pending;
        pending = current->m_nextSibling;
        if (CXmlElement* const children = std::exchange(current->m_firstChild, nullptr)) {
            current->m_lastChild->m_nextSibling = pending;
            pending = children;
        }
        delete current;
    }
}

void* CXmlElement::operator new(std::size_t size)
{
    return NodePool::AllocateFromHeap(size);
}

void* CXmlElement::operator new(std::size_t, NodePool& pool)
{
    return pool.Allocate();
}

void CXmlElement::operator delete(void* node)
{
    NodePool::Free(node);
}

void CXmlElement::operator delete(void* node, NodePool&)
{
    NodePool::Free(node);
}

CXmlElement* CXmlElement::CreateNewChildElement()
{
    DocumentStorage* const storage = GetStorage();
    if (!storage) {
        return AppendChild(std::unique_ptr<CXmlElement>(new CXmlElement(m_document, this)));
    }
    const XmlName& noName = storage->GetNames().Intern(std::wstring(), std::wstring());
    return AppendChild(
        std::unique_ptr<CXmlElement>(new (storage->GetElementPool()) CXmlElement(m_document, this, &noName)));
}

CXmlElement* CXmlElement::AppendChild(std::unique_ptr<CXmlElement> child)
{
    CXmlElement* const added = child.release();
    added->m_previousSibling = m_lastChild;
    (m_lastChild ? m_lastChild->m_nextSibling : m_firstChild) = added;
    m_lastChild = added;
    return added;
}

CXmlElement* CXmlElement::RemoveLastChildElement()
{
    CXmlElement* const removed = m_lastChild;
    if (removed) {
        m_lastChild = removed->m_previousSibling;
        (m_lastChild ? m_lastChild->m_nextSibling : m_firstChild) = nullptr;
        removed->m_previousSibling = nullptr;
        removed->m_parent = nullptr;
    }
    return removed;
}

void CXmlElement::AddAttribute(
    const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri)
{
    DocumentStorage* const storage = GetStorage();
    if (!storage) {
        AppendAttribute(std::make_unique<CXmlAttribute>(this, localName, value, namespaceUri));
        return;
    }
    const XmlName& name = storage->GetNames().Intern(namespaceUri, localName);
    std::unique_ptr<CXmlAttribute> attribute(new (storage->GetAttributePool()) CXmlAttribute(this, name));
    attribute->m_value = value;
    AppendAttribute(std::move(attribute));
}

void CXmlElement::AddParsedAttribute(const XmlName& name, const Utf16Unit* value)
{
    AssignUtf16(AddParsedAttribute(name), value, Utf16Length(value));
}

std::wstring& CXmlElement::AddParsedAttribute(const XmlName& name)
{
    std::unique_ptr<CXmlAttribute> attribute(new (name.storage->GetAttributePool()) CXmlAttribute(this, name));
    std::wstring& value = attribute->m_value;
    AppendAttribute(std::move(attribute));
    return value;
}

void CXmlElement::AppendAttribute(std::unique_ptr<CXmlAttribute> attribute)
{
    m_attributes.push_back(attribute.get());
    static_cast<void>(attribute.release());
}

void CXmlElement::AppendText(const wchar_t* text, unsigned long length)
{
    if (text) {
        ReserveAmortised(m_text, length);
        m_text.append(text, length);
    }
}

void CXmlElement::AppendText(const std::wstring& text)
{
    AppendText(text.data(), text.size());
}

// Null for an element that was built by hand: its name is its own.
DocumentStorage* CXmlElement::GetStorage() const
{
    return m_name->storage;
}

void CXmlElement::SetElementName(const std::wstring& name)
{
    SetName(m_name->namespaceUri, name);
}

void CXmlElement::SetNamespace(const std::wstring& namespaceUri)
{
    SetName(namespaceUri, m_name->localName);
}

void CXmlElement::SetName(const std::wstring& namespaceUri, const std::wstring& localName)
{
    DocumentStorage* const storage = GetStorage();
    m_name.reset(
        storage ? &storage->GetNames().Intern(namespaceUri, localName) : new XmlName(namespaceUri, localName, nullptr));
}

CXmlElement* CXmlElement::GetFirstElement() const
{
    return m_firstChild;
}

CXmlElement* CXmlElement::GetNextSiblingElement() const
{
    return m_nextSibling;
}

const std::wstring& CXmlElement::GetNamespaceURI() const
{
    return m_name->namespaceUri;
}

const std::wstring& CXmlElement::GetLocalName() const
{
    return m_name->localName;
}

const std::wstring& CXmlElement::GetText() const
{
    return m_text;
}

const std::vector<CXmlAttribute*>& CXmlElement::GetAttributes() const
{
    return m_attributes;
}

const std::wstring& CXmlElement::GetAttribute(const std::wstring& localName, const std::wstring& namespaceUri) const
{
    for (const CXmlAttribute* attribute : m_attributes) {
        if (attribute->GetLocalName() == localName && attribute->GetNamespaceURI() == namespaceUri) {
            return attribute->GetValue();
        }
    }
    static const std::wstring empty;
    return empty;
}

std::wstring CXmlElement::GetQName() const
{
    if (m_document && !GetNamespaceURI().empty()) {
        std::wstring name = m_document->LookupAliasFromNamespace(GetNamespaceURI());
        if (!name.empty()) {
            return name.append(1, L':').append(GetLocalName());
        }
    }
    return GetLocalName();
}

bool CXmlElement::HasSameQName(const CXmlElement& sibling) const
{
    if (m_name.get() == sibling.m_name.get()) {
        return true;
    }
    return GetLocalName() == sibling.GetLocalName()
        && (GetNamespaceURI() == sibling.GetNamespaceURI() || GetQName() == sibling.GetQName());
}

std::wstring CXmlElement::GetNameWithPredicate() const
{
    std::wstring name = GetQName();
    if (!m_parent) {
        return name;
    }
    unsigned long position = 0;
    unsigned long count = 0;
    for (const CXmlElement* sibling = m_parent->m_firstChild; sibling; sibling = sibling->m_nextSibling) {
        if (HasSameQName(*sibling)) {
            ++count;
            if (sibling == this) {
                position = count;
            }
        }
    }
    if (count > 1) {
        name.append(1, L'[').append(std::to_wstring(position)).append(1, L']');
    }
    return name;
}

std::wstring CXmlElement::GetXPath() const
{
    std::vector<const CXmlElement*> ancestors;
    for (const CXmlElement* element = this; element; element = element->m_parent) {
        ancestors.push_back(element);
    }
    std::wstring path;
    for (auto element = ancestors.rbegin(); element != ancestors.rend(); ++element) {
        path.append(1, L'/').append((*element)->GetNameWithPredicate());
    }
    return path;
}

CXmlElement* CXmlElement::GetParent() const
{
    return m_parent;
}

CXmlDocument* CXmlElement::GetDocument() const
{
    return m_document;
}

} // namespace ZrXmlLib16
