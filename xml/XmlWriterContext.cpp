// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlWriter.h"
#include "core/TextArgument.h"
#include "core/TextEquality.h"
#include "xml/InventedPrefix.h"

namespace ZrXmlLib16 {

namespace {

void MarkNumber(std::vector<bool>& numbers, std::size_t number)
{
    if (number >= numbers.size()) {
        numbers.resize(number + 1);
    }
    numbers[number] = true;
}

} // namespace

CXmlWriter::CXmlWriterContext::CXmlWriterContext()
    : m_childCount(0)
    , m_startTagOpen(true)
    , m_depth(0)
    , m_nameStart(0)
    , m_parent(nullptr)
    , m_state(ContextState_None)
    , m_isComplete(true)
    , m_knowsPrefixNumbers(false)
    , m_firstFreePrefixNumber(0)
    , m_inherits(false)
    , m_scope(this)
    , m_lastFound(nullptr)
{
}

CXmlWriter::CXmlWriterContext::~CXmlWriterContext() = default;

void CXmlWriter::CXmlWriterContext::BeginRoot(
    unsigned long depth, const std::wstring& defaultNamespace, const NamespaceMap& namespaceMap)
{
    m_childCount = 0;
    m_startTagOpen = true;
    m_state = ContextState_None;
    m_depth = depth;
    m_parent = nullptr;
    m_inherits = false;
    m_scope = this;
    m_lastFound = nullptr;
    m_defaultNamespace = defaultNamespace;
    m_namespaceMap = namespaceMap;
    m_isComplete = true;
    m_knowsPrefixNumbers = false;
}

void CXmlWriter::CXmlWriterContext::BeginChild(CXmlWriterContext& parent)
{
    m_childCount = 0;
    m_startTagOpen = true;
    m_state = ContextState_None;
    m_depth = parent.m_depth + 1;
    m_parent = &parent;
    m_inherits = true;
    m_scope = parent.m_scope;
}

// A scope holds its own prefixes only: copies at every level would cost the square of the depth.
void CXmlWriter::CXmlWriterContext::BeginScope()
{
    m_lastFound = nullptr;
    m_namespaceMap.clear();
    m_isComplete = false;
    m_knowsPrefixNumbers = false;
    m_inherits = false;
    m_scope = this;
}

void CXmlWriter::CXmlWriterContext::CompleteMap()
{
    for (const CXmlWriterContext* outer = GetOuterScope(); outer; outer = outer->GetOuterScope()) {
        m_namespaceMap.insert(outer->m_namespaceMap.begin(), outer->m_namespaceMap.end());
    }
    m_isComplete = true;
    m_lastFound = nullptr;
    m_knowsPrefixNumbers = false;
}

std::wstring CXmlWriter::CXmlWriterContext::GetDefaultNamespace() const
{
    return m_scope->m_defaultNamespace;
}

void CXmlWriter::CXmlWriterContext::SetDefaultNamespace(const std::wstring& namespaceUri)
{
    if (m_inherits) {
        BeginScope();
    }
    m_defaultNamespace = namespaceUri;
}

// The caller may change the map, so nothing that was derived from it is kept.
CXmlWriter::NamespaceMap& CXmlWriter::CXmlWriterContext::GetNamespaceMap()
{
    m_scope->CompleteMap();
    return m_scope->m_namespaceMap;
}

std::wstring CXmlWriter::CXmlWriterContext::GetNamespaceMapValue(const wchar_t* namespaceUri)
{
    return GetNamespaceMapValue(std::wstring(TextOrEmpty(namespaceUri)));
}

std::wstring CXmlWriter::CXmlWriterContext::GetNamespaceMapValue(const std::wstring& namespaceUri)
{
    const NamespaceMap::value_type* const entry = FindEntry(namespaceUri);
    return entry ? entry->second : m_scope->m_namespaceMap[namespaceUri];
}

void CXmlWriter::CXmlWriterContext::SetNamespaceMapValue(const std::wstring& namespaceUri, const std::wstring& prefix)
{
    const NamespaceMap::value_type* const entry = FindEntry(namespaceUri);
    const bool freesPrefix = entry && !entry->second.empty();
    EnterPrefix(namespaceUri, prefix);
    if (freesPrefix) {
        CompleteMap();
    }
}

/// Makes the prefix one of this scope.
void CXmlWriter::CXmlWriterContext::EnterPrefix(const std::wstring& namespaceUri, const std::wstring& prefix)
{
    if (m_inherits) {
        m_defaultNamespace = m_scope->m_defaultNamespace;
        BeginScope();
    }
    NamespaceMap::value_type& entry = *m_namespaceMap.try_emplace(namespaceUri).first;
    entry.second = prefix;
    m_lastFound = &entry;
    const int number = NumberOfPrefix(prefix);
    if (m_knowsPrefixNumbers && number >= 0) {
        MarkNumber(m_takenPrefixNumbers, static_cast<std::size_t>(number));
    }
}

/// The innermost entry for the namespace, null when there is none.
const CXmlWriter::NamespaceMap::value_type* CXmlWriter::CXmlWriterContext::FindEntry(
    const std::wstring& namespaceUri) const
{
    for (const CXmlWriterContext* scope = m_scope; scope; scope = scope->GetOuterScope()) {
        const auto found = scope->m_namespaceMap.find(namespaceUri);
        if (found != scope->m_namespaceMap.end()) {
            return &*found;
        }
    }
    return nullptr;
}

const std::wstring* CXmlWriter::CXmlWriterContext::FindPrefix(const std::wstring& namespaceUri) const
{
    const NamespaceMap::value_type*& lastFound = m_scope->m_lastFound;
    if (!lastFound || !AreEqual(lastFound->first, namespaceUri)) {
        const NamespaceMap::value_type* const found = FindEntry(namespaceUri);
        if (!found) {
            return nullptr;
        }
        lastFound = found;
    }
    return lastFound->second.empty() ? nullptr : &lastFound->second;
}

/// The prefix that CXmlWriter::GetUniquePrefix would give for all prefixes in scope.
std::wstring CXmlWriter::CXmlWriterContext::InventPrefix()
{
    m_scope->CollectPrefixNumbers();
    const std::vector<bool>& isTaken = m_scope->m_takenPrefixNumbers;
    std::size_t& number = m_scope->m_firstFreePrefixNumber;
    while (number < isTaken.size() && isTaken[number]) {
        ++number;
    }
    return NsIntToString(static_cast<int>(number));
}

void CXmlWriter::CXmlWriterContext::CollectPrefixNumbers()
{
    std::vector<CXmlWriterContext*> unknown;
    CXmlWriterContext* scope = this;
    for (; scope && !scope->m_knowsPrefixNumbers; scope = scope->GetOuterScope()) {
        unknown.push_back(scope);
    }
    for (const CXmlWriterContext* outer = scope; !unknown.empty(); outer = scope) {
        scope = unknown.back();
        unknown.pop_back();
        scope->m_takenPrefixNumbers = outer ? outer->m_takenPrefixNumbers : std::vector<bool>();
        scope->m_firstFreePrefixNumber = outer ? outer->m_firstFreePrefixNumber : 0;
        for (const NamespaceMap::value_type& entry : scope->m_namespaceMap) {
            const int number = NumberOfPrefix(entry.second);
            if (number >= 0) {
                MarkNumber(scope->m_takenPrefixNumbers, static_cast<std::size_t>(number));
            }
        }
        scope->m_knowsPrefixNumbers = true;
    }
}

} // namespace ZrXmlLib16
