// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_WRITERVOCABULARY_H
#define FASTINFOSET_WRITERVOCABULARY_H

#include "ZrXmlLib16/FIVocabulary.h"
#include "fastinfoset/IndexTable.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace ZrXmlLib16 {

class CFastInfosetContext;

/// The tables of a CFIVocabulary by their text-to-index maps.
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
/// top of it what the document adds. Indexes are given out as CFIVocabulary does it.
class WriterVocabulary {
public:
    /// @param context its vocabulary is borrowed when it is used.
    explicit WriterVocabulary(const CFastInfosetContext& context);
    WriterVocabulary(const WriterVocabulary&) = delete;
    WriterVocabulary& operator=(const WriterVocabulary&) = delete;

    /// For the tables of single texts. @return the index; 0 for a text that was not there and now is, unless the table
    /// is full.
    unsigned long FindOrAdd(VocabularyTable table, const std::wstring& text);
    /// The same for a table of qualified names.
    unsigned long FindOrAddName(VocabularyTable table, const std::wstring& prefix, const std::wstring& namespaceUri,
        const std::wstring& localName);
    /// @see CFIVocabulary::GetRestrictedAlphabet
    const std::wstring& GetRestrictedAlphabet(unsigned long number) const;

private:
    static constexpr std::size_t TABLE_COUNT = 7;

    struct Table {
        const CFIVocabulary::CIndexMap* base;
        unsigned long size; // entries of the base and of this document
    };

    Table& GetTable(VocabularyTable table) { return m_tables[static_cast<std::size_t>(table)]; }
    unsigned long FindInBaseOrAdd(Table& table, const IndexTable::Key& key, const std::wstring& baseKey);
    std::uint32_t ScopeOf(const std::wstring& prefix, const std::wstring& namespaceUri);
    std::uint32_t FindOrAddSpaces(const IndexTable::Key& key, std::uint32_t count);

    const CFIVocabulary& m_base;
    Table m_tables[TABLE_COUNT];
    IndexTable m_indexes;      // what the document added and what was found in the base
    std::uint32_t m_nextSpace; // of the index table
    std::wstring m_lastPrefix; // of the last qualified name, with its scope
    std::wstring m_lastNamespaceUri;
    std::uint32_t m_lastScope;
    std::wstring m_baseKey; // reused
};

} // namespace ZrXmlLib16

#endif
