// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_WRITERVOCABULARY_H
#define FASTINFOSET_WRITERVOCABULARY_H

#include "ZrXmlLib16/FIVocabulary.h"
#include "fastinfoset/IndexTable.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ZrXmlLib16 {

class CFastInfosetContext;

/// The tables of a CFIVocabulary.
enum class VocabularyTable : std::uint32_t {
    PrefixNames,
    NamespaceNames,
    LocalNames,
    AttributeValues,
    CharacterChunks,
    ElementNames,
    AttributeNames
};

/// The vocabulary of one document being written: that of the context or the built-in one, which is only read, and on
/// top of it what the document adds. Indexes are given out as CFIVocabulary does it. Everywhere, index 0 says that the
/// text was not there; now it is, unless the table is full.
class WriterVocabulary {
public:
    /// The parts have indexes only when the name has none.
    struct NameIndexes {
        unsigned long name;
        unsigned long prefix;
        unsigned long namespaceName;
        unsigned long localName;
    };

    /// @param context its vocabulary is borrowed when it is used.
    explicit WriterVocabulary(const CFastInfosetContext& context);
    WriterVocabulary(const WriterVocabulary&) = delete;
    WriterVocabulary& operator=(const WriterVocabulary&) = delete;

    /// For the tables of single texts.
    unsigned long FindOrAdd(VocabularyTable table, const std::wstring& text);
    /// For the tables of qualified names. Parts that are not empty are added as well.
    NameIndexes FindOrAddName(VocabularyTable table, const std::wstring& prefix, const std::wstring& namespaceUri,
        const std::wstring& localName);
    /// @see CFIVocabulary::GetRestrictedAlphabet
    const std::wstring& GetRestrictedAlphabet(unsigned long number) const;

private:
    static constexpr std::size_t TABLE_COUNT = 7;

    struct Table {
        const CFIVocabulary::CIndexMap* base;
        unsigned long size; // entries of the base and of this document
    };

    /// A prefix and a namespace. All names in it share two spaces of the index table.
    struct Scope {
        std::wstring_view prefix; // of the index table
        std::wstring_view namespaceUri;
        std::uint32_t space; // of the element names; attribute names have the next one
        unsigned long prefixIndex;
        unsigned long namespaceIndex;
    };

    /// A name that has an index. The few names of a document come back again and again.
    struct RecentName {
        std::wstring_view localName; // of the index table
        std::uint32_t space;
        std::uint32_t index; // 0: nothing is here yet
    };
    static constexpr std::size_t RECENT_COUNT = 64;

    RecentName& RecentSlot(std::uint32_t space, const std::wstring& localName);
    Table& GetTable(VocabularyTable table) { return m_tables[static_cast<std::size_t>(table)]; }
    unsigned long FindOrAdd(VocabularyTable table, IndexTable::Key key, const std::wstring& text);
    void Add(Table& table, IndexTable::Key& key);
    bool FindInBase(const Table& table, IndexTable::Key& key, const std::wstring& baseKey, unsigned long& index);
    Scope& ScopeOf(const std::wstring& prefix, const std::wstring& namespaceUri);
    std::uint32_t FindOrAddSpaces(IndexTable::Key& key, std::uint32_t count);

    const CFIVocabulary& m_base;
    Table m_tables[TABLE_COUNT];
    IndexTable m_indexes;      // what the document added and what was found in the base
    std::uint32_t m_nextSpace; // of the index table
    Scope m_unqualified;
    RecentName m_recentNames[RECENT_COUNT];
    Scope m_lastScope;      // of the last name with a prefix or namespace
    std::wstring m_baseKey; // reused
};

} // namespace ZrXmlLib16

#endif
