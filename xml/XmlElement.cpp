// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlElement.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "xml/DocumentStorage.h"
#include "xml/NodeAccess.h"

#include <utility>

namespace ZrXmlLib16 {

CXmlElement::CXmlElement(CXmlDocument* document, CXmlElement* parent)
    : m_document(document)
    , m_parent(parent)
    , m_nextSibling(nullptr)
    , m_previousSibling(nullptr)
    , m_firstChild(nullptr)
    , m_name(new OwnXmlName(std::wstring(), std::wstring()))
    , m_lastAttribute(nullptr)
{
}

CXmlElement::CXmlElement(CXmlElement* parent, const XmlName& name) noexcept
    : m_position()
    , m_parent(parent)
    , m_nextSibling(nullptr)
    , m_previousSibling(nullptr)
    , m_firstChild(nullptr)
    , m_name(&name)
    , m_lastAttribute(nullptr)
{
}

CXmlElement::~CXmlElement()
{
    DeleteAttributes();
    m_text.Release();
    // Every element gives its children to the list that is being worked off before it is deleted, so that no depth
    // costs stack.
    CXmlElement* pending = std::exchange(m_firstChild, nullptr);
    while (pending) {
        CXmlElement* const current = pending;
        pending = current->m_nextSibling;
        if (CXmlElement* const children = std::exchange(current->m_firstChild, nullptr)) {
            children->m_previousSibling->m_nextSibling = pending;
            pending = children;
        }
        delete current;
    }
}

void* CXmlElement::operator new(std::size_t size)
{
    return NodePool::AllocateFromHeap(size);
}

void* CXmlElement::operator new(std::size_t size, NodePool& pool)
{
    static_assert(alignof(CXmlElement) <= NodePool::ALIGNMENT && sizeof(CXmlElement) % NodePool::ALIGNMENT == 0);
    return pool.Allocate(size);
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
        return AppendChild(new CXmlElement(m_document, this));
    }
    const XmlName& noName = storage->GetNames().Intern(std::wstring(), std::wstring());
    return AppendChild(new (storage->GetElementPool()) CXmlElement(this, noName));
}

CXmlElement* CXmlElement::RemoveLastChildElement()
{
    CXmlElement* const removed = GetLastElement();
    if (!removed) {
        return nullptr;
    }
    if (removed == m_firstChild) {
        m_firstChild = nullptr;
    } else {
        m_firstChild->m_previousSibling = removed->m_previousSibling;
        removed->m_previousSibling->m_nextSibling = nullptr;
    }
    removed->m_previousSibling = nullptr;
    removed->m_parent = nullptr;
    if (DocumentStorage* const storage = removed->GetStorage()) {
        storage->ReleaseNode();
    }
    return removed;
}

void CXmlElement::DeleteAttributes() noexcept
{
    if (!m_lastAttribute) {
        return;
    }
    CXmlAttribute* attribute = std::exchange(m_lastAttribute->m_next, nullptr);
    while (attribute) {
        delete std::exchange(attribute, attribute->m_next);
    }
    m_lastAttribute = nullptr;
}

void CXmlElement::AddAttribute(
    const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri)
{
    if (DocumentStorage* const storage = GetStorage()) {
        AddNamedAttribute(storage->GetNames().Intern(namespaceUri, localName), value);
    } else {
        AppendAttribute(std::make_unique<CXmlAttribute>(this, localName, value, namespaceUri));
    }
}

void CXmlElement::AddNamedAttribute(const XmlName& name, const std::wstring& value)
{
    std::unique_ptr<CXmlAttribute> attribute(new (name.storage->GetAttributePool()) CXmlAttribute(this, name));
    attribute->m_value.AppendCompact(name.storage, value.data(), value.size());
    AppendAttribute(std::move(attribute));
}

void CXmlElement::AddParsedAttribute(const XmlName& name, const Utf16Unit* value, std::size_t length)
{
    std::unique_ptr<CXmlAttribute> attribute(new (name.storage->GetAttributePool()) CXmlAttribute(this, name));
    attribute->m_value.AssignParsed(*name.storage, value, length);
    AppendAttribute(std::move(attribute));
}

void CXmlElement::AppendAttribute(std::unique_ptr<CXmlAttribute> attribute)
{
    if (m_text.ListsAttributes()) {
        m_text.GetForms(GetStorage()).attributes.push_back(attribute.get());
    }
    LinkAttribute(attribute.release());
}

void CXmlElement::AppendText(const wchar_t* text, unsigned long length)
{
    if (text) {
        m_text.AppendCompact(GetStorage(), text, length);
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
    SetName(namespaceUri, m_name->GetLocalName());
}

void CXmlElement::SetName(const std::wstring& namespaceUri, const std::wstring& localName)
{
    DocumentStorage* const storage = GetStorage();
    const XmlName* const name =
        storage ? &storage->GetNames().Intern(namespaceUri, localName) : new OwnXmlName(namespaceUri, localName);
    m_name.reset(name);
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
    return m_name->GetLocalName();
}

const std::wstring& CXmlElement::GetText() const
{
    return m_text.GetForms(GetStorage()).text;
}

const std::vector<CXmlAttribute*>& CXmlElement::GetAttributes() const
{
    NodeForms& forms = m_text.GetForms(GetStorage());
    if (!forms.listsAttributes) {
        for (CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(*this); attribute;
             attribute = NodeAccess::GetNextAttribute(*this, *attribute)) {
            forms.attributes.push_back(attribute);
        }
        forms.listsAttributes = true;
    }
    return forms.attributes;
}

const std::wstring& CXmlElement::GetAttribute(const std::wstring& localName, const std::wstring& namespaceUri) const
{
    if (const CXmlAttribute* const attribute = FindAttribute(localName, namespaceUri)) {
        return attribute->GetValue();
    }
    static const std::wstring empty;
    return empty;
}

CXmlAttribute* CXmlElement::FindAttribute(const std::wstring& localName, const std::wstring& namespaceUri) const
{
    CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(*this);
    while (attribute && (attribute->GetLocalName() != localName || attribute->GetNamespaceURI() != namespaceUri)) {
        attribute = NodeAccess::GetNextAttribute(*this, *attribute);
    }
    return attribute;
}

std::wstring CXmlElement::GetQName() const
{
    const CXmlDocument* const document = GetDocument();
    if (document && !GetNamespaceURI().empty()) {
        std::wstring name = document->LookupAliasFromNamespace(GetNamespaceURI());
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
    const DocumentStorage* const storage = GetStorage();
    return storage ? &storage->GetDocument() : m_document;
}

unsigned long CXmlElement::GetLine() const
{
    return GetStorage() ? m_position.line : 0;
}

unsigned long CXmlElement::GetColumn() const
{
    return GetStorage() ? m_position.column : 0;
}

} // namespace ZrXmlLib16
