// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlWriter.h"

#include "ZrXmlLib16/ZrException.h"
#include "core/NillableMemory.h"
#include "core/TextEquality.h"
#include "xml/InventedPrefix.h"
#include "xml/XmlMessages.h"
#include "xml/XmlNamespaces.h"

#include <vector>

namespace ZrXmlLib16 {

CXmlWriter::CXmlWriter(const wchar_t*)
    : m_currentContext(nullptr)
    , m_openContexts(0)
    , m_nillables(new CNillableMemory)
    , m_joinsCalls(false)
{
    m_namespaceMap.emplace(XML_NAMESPACE_URI, L"xml");
}

CXmlWriter::~CXmlWriter() = default;

void CXmlWriter::Open() { }

void CXmlWriter::Close()
{
    if (m_currentContext) {
        throw CZrException(Message::ELEMENT_NOT_CLOSED);
    }
}

void CXmlWriter::SetDefaultNamespace(const std::wstring& namespaceUri)
{
    if (m_currentContext) {
        m_currentContext->SetDefaultNamespace(namespaceUri);
    } else {
        m_defaultNamespace = namespaceUri;
    }
}

void CXmlWriter::AddNamespace(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    if (m_currentContext) {
        m_currentContext->SetNamespaceMapValue(namespaceUri, prefix);
    } else {
        m_namespaceMap[namespaceUri] = prefix;
    }
}

void CXmlWriter::SetContextState(ContextState state)
{
    if (m_currentContext) {
        m_currentContext->m_state = state;
    }
}

// kept: required behaviour. Past number 675 the first character leaves the alphabet.
std::wstring CXmlWriter::NsIntToString(int number)
{
    return {static_cast<wchar_t>(L'A' + number / INVENTED_PREFIX_LETTERS),
        static_cast<wchar_t>(L'A' + number % INVENTED_PREFIX_LETTERS)};
}

std::wstring CXmlWriter::GetUniquePrefix(const NamespaceMap& map) const
{
    // As many prefixes as the map has entries cannot take all of the first size + 1 numbers.
    std::vector<bool> isTaken(map.size() + 1, false);
    for (const auto& entry : map) {
        const int number = NumberOfPrefix(entry.second);
        if (number >= 0 && static_cast<std::size_t>(number) < isTaken.size()) {
            isTaken[static_cast<std::size_t>(number)] = true;
        }
    }
    int number = 0;
    while (isTaken[static_cast<std::size_t>(number)]) {
        ++number;
    }
    return NsIntToString(number);
}

bool CXmlWriter::WriteTextElement(const std::wstring&, const std::wstring&, const std::wstring&, ItemType, bool)
{
    return false;
}

CXmlWriter::CXmlWriterContext& CXmlWriter::OpenContext(unsigned long rootDepth)
{
    if (m_openContexts == m_contexts.size()) {
        m_contexts.push_back(std::unique_ptr<CXmlWriterContext>(new CXmlWriterContext));
    }
    CXmlWriterContext& context = *m_contexts[m_openContexts];
    if (m_currentContext) {
        context.BeginChild(*m_currentContext);
    } else {
        context.BeginRoot(rootDepth, m_defaultNamespace, m_namespaceMap);
    }
    ++m_openContexts;
    m_currentContext = &context;
    return context;
}

void CXmlWriter::CloseContext() noexcept
{
    m_currentContext = m_currentContext->m_parent;
    --m_openContexts;
}

bool CXmlWriter::IsPrefixed(const std::wstring& namespaceUri) const
{
    return !namespaceUri.empty() && !AreEqual(namespaceUri, m_currentContext->m_scope->m_defaultNamespace);
}

const std::wstring& CXmlWriter::ObtainPrefix(const std::wstring& namespaceUri, bool& isNew)
{
    const std::wstring* prefix = m_currentContext->FindPrefix(namespaceUri);
    isNew = !prefix;
    if (isNew) {
        // kept: required behaviour. A prefix belongs to the element it was invented on, so siblings invent it again.
        m_currentContext->EnterPrefix(namespaceUri, m_currentContext->InventPrefix());
        prefix = m_currentContext->FindPrefix(namespaceUri);
    }
    return *prefix;
}

} // namespace ZrXmlLib16
