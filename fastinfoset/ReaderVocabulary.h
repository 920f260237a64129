// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_READERVOCABULARY_H
#define FASTINFOSET_READERVOCABULARY_H

#include "ZrXmlLib16/FIVocabulary.h"
#include "fastinfoset/CodecRanges.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ZrXmlLib16 {

class CFastInfosetContext;
class NameTable;
struct XmlName;

/// A string table as a reader needs it, from index to text: the table of a generated vocabulary in place, and behind it
/// what the document adds. Indexes start at 1; nothing is entered beyond 2^20 entries.
class TextTable {
public:
    /// @param base not owned, null for none.
    explicit TextTable(const CFIVocabulary::CFIStringTable* base);

    /// Null for an index that is not in the table. Valid until the next Add.
    const std::wstring* Find(std::uint64_t index) const noexcept
    {
        const std::uint64_t offset = index - 1; // wraps for 0
        return offset < m_baseSize ? m_base + offset : FindAdded(offset - m_baseSize);
    }
    /// @return the text that was given, in the table or, once that is full, until the next Add.
    const std::wstring& Add(std::wstring text);

private:
    const std::wstring* FindAdded(std::uint64_t offset) const noexcept
    {
        return offset < m_added.size() ? &m_added[offset] : nullptr;
    }

    const std::wstring* m_base;
    std::uint64_t m_baseSize;
    std::vector<std::wstring> m_added;
    std::wstring m_unlisted; // the last text that found the table full
};

/// The attribute values, character chunks or local names that an index stands for. Most of those that the document
/// brought are units in its memory, which its nodes share; the others and the base are wide text.
class ValueTable {
public:
    /// Without carriage returns, and fewer than 2^32 - 1.
    struct Units {
        const unsigned short* units;
        std::size_t length;
    };

    /// @param base not owned, null for none.
    explicit ValueTable(const CFIVocabulary::CFIStringTable* base);

    /// Null for an entry that is wide text. Valid until the next Add.
    const Units* FindUnits(std::uint64_t index) const noexcept
    {
        const std::uint64_t offset = index - 1 - m_baseSize; // wraps for what is not above the base
        return offset < m_added.size() && m_added[offset].units ? &m_added[offset] : nullptr;
    }
    /// For entries that are not units; null for an index that is not in the table.
    const std::wstring* FindText(std::uint64_t index) const noexcept;
    /// Once the table is full, nothing is added.
    bool IsFull() const noexcept { return m_baseSize + m_added.size() >= MAXIMUM_INDEX; }
    /// @param units not owned, not null.
    void Add(const unsigned short* units, std::size_t length)
    {
        if (!IsFull()) {
            m_added.push_back({units, length});
        }
    }
    void Add(std::wstring text);

private:
    const std::wstring* m_base;
    std::uint64_t m_baseSize;
    std::vector<Units> m_added; // without units: the length is an index of m_wide
    std::vector<std::wstring> m_wide;
};

/// A local name as it lies in a table: units or, if there is a text, that. Neither when there is no such entry.
struct LocalName {
    explicit operator bool() const noexcept { return units || text; }

    const unsigned short* units;
    std::size_t length;
    const std::wstring* text;
};

/// The tables of one document while it is read. The names of elements and attributes are those of the document
/// itself, so an index gives a name that nodes can take as it is.
class ReaderVocabulary {
public:
    /// Starts with the context's vocabulary when it is to be used, else with the built-in entries.
    /// @param context and its vocabulary: not owned, unchanged while this lives.
    /// @param names of the document, where names are kept.
    ReaderVocabulary(const CFastInfosetContext& context, NameTable& names);
    ReaderVocabulary(const ReaderVocabulary&) = delete;
    ReaderVocabulary& operator=(const ReaderVocabulary&) = delete;

    TextTable& GetPrefixes() noexcept { return m_prefixes; }
    TextTable& GetNamespaceNames() noexcept { return m_namespaceNames; }
    ValueTable& GetLocalNames() noexcept { return m_localNames; }
    ValueTable& GetAttributeValues() noexcept { return m_attributeValues; }
    ValueTable& GetCharacterChunks() noexcept { return m_characterChunks; }

    LocalName FindLocalName(std::uint64_t index) const noexcept;
    /// Null for an index that is not in the table.
    const XmlName* FindElementName(std::uint64_t index) { return Find(m_elementNames, index); }
    const XmlName* FindAttributeName(std::uint64_t index) { return Find(m_attributeNames, index); }
    const XmlName& AddElementName(const std::wstring& namespaceUri, const LocalName& localName)
    {
        return Add(m_elementNames, namespaceUri, localName);
    }
    const XmlName& AddAttributeName(const std::wstring& namespaceUri, const LocalName& localName)
    {
        return Add(m_attributeNames, namespaceUri, localName);
    }

    /// For its restricted alphabets.
    const CFIVocabulary& GetAlphabets() const noexcept { return m_generated; }

private:
    /// The entries of the base are resolved when they are first used: null until then.
    struct QualifiedNames {
        explicit QualifiedNames(const CFIVocabulary::CFIQNameTable* baseTable);

        const CFIVocabulary::CFIQNameTable* base;
        std::vector<const XmlName*> names;
    };

    ReaderVocabulary(CFIVocabulary& generated, bool isUsed, NameTable& names);
    const XmlName* Find(QualifiedNames& table, std::uint64_t index)
    {
        const std::uint64_t offset = index - 1; // wraps for 0
        if (offset >= table.names.size()) {
            return nullptr;
        }
        const XmlName* const name = table.names[offset];
        return name ? name : Resolve(table, index);
    }
    const XmlName* Resolve(QualifiedNames& table, std::uint64_t index);
    const XmlName& Add(QualifiedNames& table, const std::wstring& namespaceUri, const LocalName& localName);
    const XmlName& Intern(const std::wstring& namespaceUri, const LocalName& localName);

    const CFIVocabulary& m_generated;
    NameTable& m_names;
    TextTable m_prefixes;
    TextTable m_namespaceNames;
    ValueTable m_localNames;
    ValueTable m_attributeValues;
    ValueTable m_characterChunks;
    QualifiedNames m_elementNames;
    QualifiedNames m_attributeNames;
};

} // namespace ZrXmlLib16

#endif
