// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlWriter.h"
#include "core/TextArgument.h"

namespace ZrXmlLib16 {

CXmlWriter::CXmlWriterContext::CXmlWriterContext()
    : m_childCount(0)
    , m_startTagOpen(true)
    , m_depth(0)
    , m_parent(nullptr)
    , m_state(ContextState_None)
    , m_inherits(false)
    , m_scope(this)
    , m_lastFound(nullptr)
{
}

CXmlWriter::CXmlWriterContext::~CXmlWriterContext() = default;

void CXmlWriter::CXmlWriterContext::BeginRoot(
    unsigned long depth, const std::wstring& defaultNamespace, const NamespaceMap& namespaceMap)
{
    m_depth = depth;
    m_parent = nullptr;
    m_inherits = false;
    m_scope = this;
    m_lastFound = nullptr;
    m_defaultNamespace = defaultNamespace;
    m_namespaceMap = namespaceMap;
}

void CXmlWriter::CXmlWriterContext::BeginChild(CXmlWriterContext& parent)
{
    m_depth = parent.m_depth + 1;
    m_parent = &parent;
    m_inherits = true;
    m_scope = parent.m_scope;
}

void CXmlWriter::CXmlWriterContext::SetName(const std::wstring& localName, const std::wstring& namespaceUri)
{
    m_childCount = 0;
    m_startTagOpen = true;
    m_state = ContextState_None;
    m_localName = localName;
    m_namespaceUri = namespaceUri;
    m_prefix.clear();
}

void CXmlWriter::CXmlWriterContext::CopyParentMap()
{
    m_lastFound = nullptr;
    m_namespaceMap = m_scope->m_namespaceMap;
    m_inherits = false;
    m_scope = this;
}

std::wstring CXmlWriter::CXmlWriterContext::GetDefaultNamespace() const
{
    return m_scope->m_defaultNamespace;
}

void CXmlWriter::CXmlWriterContext::SetDefaultNamespace(const std::wstring& namespaceUri)
{
    if (m_inherits) {
        CopyParentMap();
    }
    m_defaultNamespace = namespaceUri;
}

CXmlWriter::NamespaceMap& CXmlWriter::CXmlWriterContext::GetNamespaceMap()
{
    m_scope->m_lastFound = nullptr;
    return m_scope->m_namespaceMap;
}

std::wstring CXmlWriter::CXmlWriterContext::GetNamespaceMapValue(const wchar_t* namespaceUri)
{
    return GetNamespaceMapValue(std::wstring(TextOrEmpty(namespaceUri)));
}

std::wstring CXmlWriter::CXmlWriterContext::GetNamespaceMapValue(const std::wstring& namespaceUri)
{
    return m_scope->m_namespaceMap[namespaceUri];
}

void CXmlWriter::CXmlWriterContext::SetNamespaceMapValue(const std::wstring& namespaceUri, const std::wstring& prefix)
{
    if (m_inherits) {
        m_defaultNamespace = m_scope->m_defaultNamespace;
        CopyParentMap();
    }
    m_namespaceMap[namespaceUri] = prefix;
}

const std::wstring* CXmlWriter::CXmlWriterContext::FindPrefix(const std::wstring& namespaceUri) const
{
    const NamespaceMap::value_type*& lastFound = m_scope->m_lastFound;
    if (!lastFound || lastFound->first != namespaceUri) {
        const auto found = m_scope->m_namespaceMap.find(namespaceUri);
        if (found == m_scope->m_namespaceMap.end()) {
            return nullptr;
        }
        lastFound = &*found;
    }
    return lastFound->second.empty() ? nullptr : &lastFound->second;
}

} // namespace ZrXmlLib16
