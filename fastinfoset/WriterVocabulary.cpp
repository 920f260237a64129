// SPDX-License-Identifier: MIT
#include "fastinfoset/WriterVocabulary.h"

#include "ZrXmlLib16/FastInfosetContext.h"
#include "core/TextEquality.h"
#include "fastinfoset/CodecRanges.h"

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t KEY_SEPARATOR = 1;

// Spaces of the index table. The first ones are the tables of single texts, by number. The namespaces of scopes have
// one, in which the index is another space: that of the prefixes that the namespace has in some scope.
constexpr std::uint32_t NAMESPACES_OF_SCOPES = 5;
constexpr std::uint32_t UNQUALIFIED_NAMES = 6;
constexpr std::uint32_t SPACES_PER_SCOPE = 2;
constexpr std::uint32_t FIRST_UNUSED_SPACE = UNQUALIFIED_NAMES + SPACES_PER_SCOPE;

CFIVocabulary& BaseOf(const CFastInfosetContext& context)
{
    static CFIVocabulary builtIn; // never changed
    return context.GetUseGeneratedVocabulary() ? *context.GetVocabulary() : builtIn;
}

} // namespace

WriterVocabulary::WriterVocabulary(const CFastInfosetContext& context)
    : m_base(BaseOf(context))
    , m_nextSpace(FIRST_UNUSED_SPACE)
    , m_unqualified{{}, {}, UNQUALIFIED_NAMES, 0, 0}
    , m_recentNames{}
    , m_lastScope(m_unqualified)
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
    return FindOrAdd(table, IndexTable::Key(static_cast<std::uint32_t>(table), text), text);
}

unsigned long WriterVocabulary::FindOrAdd(VocabularyTable table, IndexTable::Key key, const std::wstring& text)
{
    unsigned long index = m_indexes.Find(key);
    if (index == 0 && !FindInBase(GetTable(table), key, text, index)) {
        Add(GetTable(table), key);
    }
    return index;
}

WriterVocabulary::NameIndexes WriterVocabulary::FindOrAddName(
    VocabularyTable table, const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
{
    Scope& scope = ScopeOf(prefix, namespaceUri);
    const std::uint32_t space = scope.space + (table == VocabularyTable::ElementNames ? 0 : 1);
    RecentName& recent = RecentSlot(space, localName);
    if (recent.index != 0 && recent.space == space && AreEqual(recent.localName, localName)) {
        return {recent.index, 0, 0, 0};
    }
    IndexTable::Key key(space, localName);
    const std::uint32_t index = m_indexes.Find(key);
    NameIndexes indexes{index, 0, 0, 0};
    if (index != 0) {
        recent = {key.GetText(), space, index};
        return indexes;
    }
    if (!GetTable(table).base->empty()) {
        m_baseKey.assign(localName)
            .append(1, KEY_SEPARATOR)
            .append(namespaceUri)
            .append(1, KEY_SEPARATOR)
            .append(prefix);
        if (FindInBase(GetTable(table), key, m_baseKey, indexes.name)) {
            return indexes;
        }
    }
    Add(GetTable(table), key);
    if (!prefix.empty() && scope.prefixIndex == 0) {
        scope.prefixIndex = FindOrAdd(VocabularyTable::PrefixNames, prefix);
    }
    if (!namespaceUri.empty() && scope.namespaceIndex == 0) {
        scope.namespaceIndex = FindOrAdd(VocabularyTable::NamespaceNames, namespaceUri);
    }
    indexes.prefix = scope.prefixIndex;
    indexes.namespaceName = scope.namespaceIndex;
    const auto localNames = static_cast<std::uint32_t>(VocabularyTable::LocalNames);
    indexes.localName = FindOrAdd(VocabularyTable::LocalNames, key.InSpace(localNames), localName);
    return indexes;
}

/// The only place where a name is kept in mind.
WriterVocabulary::RecentName& WriterVocabulary::RecentSlot(std::uint32_t space, const std::wstring& localName)
{
    const std::size_t length = localName.size();
    const std::size_t ends = length == 0 ? 0 : static_cast<std::size_t>(localName.front() + 7 * localName.back());
    return m_recentNames[(space + 3 * length + ends) % RECENT_COUNT];
}

bool WriterVocabulary::FindInBase(
    const Table& table, IndexTable::Key& key, const std::wstring& baseKey, unsigned long& index)
{
    if (table.base->empty() || !m_base.FindIndex(*table.base, baseKey, index)) {
        return false;
    }
    m_indexes.Insert(key, static_cast<std::uint32_t>(index));
    return true;
}

void WriterVocabulary::Add(Table& table, IndexTable::Key& key)
{
    if (table.size < MAXIMUM_INDEX) {
        m_indexes.Insert(key, static_cast<std::uint32_t>(table.size + 1));
        ++table.size;
    }
}

WriterVocabulary::Scope& WriterVocabulary::ScopeOf(const std::wstring& prefix, const std::wstring& namespaceUri)
{
    if (namespaceUri.empty() && prefix.empty()) {
        return m_unqualified;
    }
    if (!AreEqual(namespaceUri, m_lastScope.namespaceUri) || !AreEqual(prefix, m_lastScope.prefix)) {
        IndexTable::Key namespaceKey(NAMESPACES_OF_SCOPES, namespaceUri);
        const std::uint32_t prefixes = FindOrAddSpaces(namespaceKey, 1);
        IndexTable::Key prefixKey(prefixes, prefix);
        const std::uint32_t space = FindOrAddSpaces(prefixKey, SPACES_PER_SCOPE);
        m_lastScope = {prefixKey.GetText(), namespaceKey.GetText(), space, 0, 0};
    }
    return m_lastScope;
}

std::uint32_t WriterVocabulary::FindOrAddSpaces(IndexTable::Key& key, std::uint32_t count)
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
