// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/NamespaceAliasMap.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/CoreMessages.h"
#include "core/TextArgument.h"

#include <algorithm>
#include <iterator>

namespace ZrXmlLib16 {

namespace {

CNamespaceAliasMap::Entries::const_iterator FindAlias(const CNamespaceAliasMap::Entries& entries, const wchar_t* alias)
{
    return std::find_if(entries.begin(), entries.end(),
        [alias](const CNamespaceAliasMap::Entries::value_type& entry) { return entry.second == TextOrEmpty(alias); });
}

} // namespace

CNamespaceAliasMap::~CNamespaceAliasMap() = default;

void CNamespaceAliasMap::Add(const wchar_t* alias, const wchar_t* namespaceUri)
{
    m_aliases[TextOrEmpty(namespaceUri)] = TextOrEmpty(alias);
}

void CNamespaceAliasMap::RemoveNamespace(const wchar_t* namespaceUri)
{
    m_aliases.erase(TextOrEmpty(namespaceUri));
}

bool CNamespaceAliasMap::DoesNamespaceExist(const wchar_t* namespaceUri) const
{
    return m_aliases.count(TextOrEmpty(namespaceUri)) != 0;
}

bool CNamespaceAliasMap::DoesAliasExist(const wchar_t* alias) const
{
    return FindAlias(m_aliases, alias) != m_aliases.end();
}

int CNamespaceAliasMap::GetNamespaceCount() const
{
    return static_cast<int>(m_aliases.size());
}

std::wstring CNamespaceAliasMap::GetNamespaceAt(int index) const
{
    return std::next(m_aliases.begin(), index)->first;
}

std::wstring CNamespaceAliasMap::GetNamespaceFromAlias(const wchar_t* alias) const
{
    const Entries::const_iterator found = FindAlias(m_aliases, alias);
    if (found == m_aliases.end()) {
        throw CZrException(FormatString(Message::ALIAS_NOT_FOUND, TextOrEmpty(alias)));
    }
    return found->first;
}

std::wstring CNamespaceAliasMap::GetAliasFromNamespace(const wchar_t* namespaceUri) const
{
    // kept: required behaviour. An unknown URI is entered with an empty alias, which the writers then take for no
    // prefix.
    return m_aliases[TextOrEmpty(namespaceUri)];
}

const CNamespaceAliasMap::Entries& CNamespaceAliasMap::GetEntries() const
{
    return m_aliases;
}

} // namespace ZrXmlLib16
