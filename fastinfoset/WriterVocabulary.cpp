// SPDX-License-Identifier: MIT
#include "fastinfoset/WriterVocabulary.h"

#include "ZrXmlLib16/FastInfosetContext.h"
#include "fastinfoset/CodecRanges.h"

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t KEY_SEPARATOR = 1;

// Spaces of the index table. The first ones are the tables of single texts, by number. A pair of prefix and namespace
// is a scope, with one space for the element names in it and the next one for the attribute names.
constexpr std::uint32_t NAMESPACES_OF_SCOPES = 5;
constexpr std::uint32_t UNQUALIFIED_SCOPE = 6;
constexpr std::uint32_t SPACES_PER_SCOPE = 2;
constexpr std::uint32_t FIRST_UNUSED_SPACE = UNQUALIFIED_SCOPE + SPACES_PER_SCOPE;

CFIVocabulary& BaseOf(const CFastInfosetContext& context)
{
    static CFIVocabulary builtIn; // never changed
    return context.GetUseGeneratedVocabulary() ? *context.GetVocabulary() : builtIn;
}

} // namespace

WriterVocabulary::WriterVocabulary(const CFastInfosetContext& context)
    : m_base(BaseOf(context))
    , m_nextSpace(FIRST_UNUSED_SPACE)
    , m_lastScope(UNQUALIFIED_SCOPE)
{
    CFIVocabulary& base = BaseOf(context);
    const CFIVocabulary::CIndexMap* const maps[TABLE_COUNT] = {&base.GetPrefixNamesMap(), &base.GetNamespaceNamesMap(),
        &base.GetLocalNamesMap(), &base.GetAttributeValuesMap(), &base.GetCharacterChunksMap(),
        &base.GetElementNamesMap(), &base.GetAttributeNamesMap()};
    for (std::size_t i = 0; i < TABLE_COUNT; ++i) {
        m_tables[i] = {maps[i], maps[i]->size()};
    }
}

unsigned long WriterVocabulary::FindOrAdd(VocabularyTable table, const std::wstring& text)
{
    const IndexTable::Key key(static_cast<std::uint32_t>(table), text);
    const std::uint32_t index = m_indexes.Find(key);
    return index != 0 ? index : FindInBaseOrAdd(GetTable(table), key, text);
}

unsigned long WriterVocabulary::FindOrAddName(
    VocabularyTable table, const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
{
    const std::uint32_t kind = table == VocabularyTable::ElementNames ? 0 : 1;
    const IndexTable::Key key(ScopeOf(prefix, namespaceUri) + kind, localName);
    const std::uint32_t index = m_indexes.Find(key);
    if (index != 0) {
        return index;
    }
    m_baseKey.assign(localName).append(1, KEY_SEPARATOR).append(namespaceUri).append(1, KEY_SEPARATOR).append(prefix);
    return FindInBaseOrAdd(GetTable(table), key, m_baseKey);
}

unsigned long WriterVocabulary::FindInBaseOrAdd(Table& table, const IndexTable::Key& key, const std::wstring& baseKey)
{
    unsigned long index = 0;
    if (!table.base->empty() && m_base.FindIndex(*table.base, baseKey, index)) {
        m_indexes.Insert(key, static_cast<std::uint32_t>(index));
    } else if (table.size < MAXIMUM_INDEX) {
        m_indexes.Insert(key, static_cast<std::uint32_t>(table.size + 1));
        ++table.size;
    }
    return index;
}

std::uint32_t WriterVocabulary::ScopeOf(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    if (namespaceUri.empty() && prefix.empty()) {
        return UNQUALIFIED_SCOPE;
    }
    if (namespaceUri != m_lastNamespaceUri || prefix != m_lastPrefix) {
        const std::uint32_t prefixes = FindOrAddSpaces({NAMESPACES_OF_SCOPES, namespaceUri}, 1);
        m_lastScope = FindOrAddSpaces({prefixes, prefix}, SPACES_PER_SCOPE);
        m_lastNamespaceUri = namespaceUri;
        m_lastPrefix = prefix;
    }
    return m_lastScope;
}

std::uint32_t WriterVocabulary::FindOrAddSpaces(const IndexTable::Key& key, std::uint32_t count)
{
    std::uint32_t space = m_indexes.Find(key);
    if (space == 0) {
        space = m_nextSpace;
        m_indexes.Insert(key, space);
        m_nextSpace += count;
    }
    return space;
}

const std::wstring& WriterVocabulary::GetRestrictedAlphabet(unsigned long number) const
{
    return m_base.GetRestrictedAlphabet(number);
}

} // namespace ZrXmlLib16
