// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlAttribute.h"

#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "xml/DocumentStorage.h"

namespace ZrXmlLib16 {

CXmlAttribute::CXmlAttribute(
    CXmlElement* owner, const std::wstring& localName, const std::wstring& value, const std::wstring& namespaceUri)
    : m_owner(owner)
    , m_name(new OwnXmlName(namespaceUri, localName))
    , m_next(this)
{
    m_value.AppendWide(nullptr, value.data(), value.size());
}

CXmlAttribute::CXmlAttribute(CXmlElement* owner, const XmlName& name) noexcept
    : m_owner(owner)
    , m_name(&name)
    , m_next(this)
{
}

CXmlAttribute::~CXmlAttribute()
{
    m_value.Release();
}

void* CXmlAttribute::operator new(std::size_t size)
{
    return NodePool::AllocateFromHeap(size);
}

void* CXmlAttribute::operator new(std::size_t size, NodePool& pool)
{
    static_assert(alignof(CXmlAttribute) <= NodePool::ALIGNMENT && sizeof(CXmlAttribute) % NodePool::ALIGNMENT == 0);
    return pool.Allocate(size);
}

void CXmlAttribute::operator delete(void* node)
{
    NodePool::Free(node);
}

void CXmlAttribute::operator delete(void* node, NodePool&)
{
    NodePool::Free(node);
}

const std::wstring& CXmlAttribute::GetNamespaceURI() const
{
    return m_name->namespaceUri;
}

const std::wstring& CXmlAttribute::GetLocalName() const
{
    return m_name->GetLocalName();
}

const std::wstring& CXmlAttribute::GetValue() const
{
    return m_value.GetForms(GetStorage()).text;
}

// Null for an attribute that was built by hand: its name is its own.
DocumentStorage* CXmlAttribute::GetStorage() const
{
    return m_name->storage;
}

std::wstring CXmlAttribute::GetXPath() const
{
    std::wstring path = m_owner ? m_owner->GetXPath() : std::wstring();
    path += L'/';
    const CXmlDocument* const document = m_owner ? m_owner->GetDocument() : nullptr;
    if (document && !GetNamespaceURI().empty()) {
        const std::wstring prefix = document->LookupAliasFromNamespace(GetNamespaceURI());
        if (!prefix.empty()) {
            // kept: required behaviour. The prefix stands before the "@".
            path.append(prefix).append(1, L':');
        }
    }
    return path.append(1, L'@').append(GetLocalName());
}

bool CXmlAttribute::IsNamespaceAttribute() const
{
    return m_name->isNamespaceAttribute;
}

bool CXmlAttribute::IsNilAttribute() const
{
    return m_name->isNilAttribute;
}

} // namespace ZrXmlLib16
