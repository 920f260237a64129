// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_ITEMWRITER_H
#define FASTINFOSET_ITEMWRITER_H

#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/ItemType.h"
#include "fastinfoset/AlphabetPacker.h"
#include "fastinfoset/OctetWriter.h"
#include "fastinfoset/WriterVocabulary.h"

#include <optional>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Writes the names and values of a document: as an index when they are in the vocabulary, else in full.
class ItemWriter {
public:
    /// @param context not owned.
    /// @param octets not owned.
    ItemWriter(const CFastInfosetContext& context, OctetWriter& octets);
    ItemWriter(const ItemWriter&) = delete;
    ItemWriter& operator=(const ItemWriter&) = delete;

    /// A prefix, namespace name or local name (X.891, C.13).
    /// @throws CZrException for an empty text.
    void WriteIdentifyingString(VocabularyTable table, const std::wstring& text);
    /// @{
    /// X.891, C.18. A name is looked up, which adds it, and then written by its index or, when it had none, in full.
    /// @param leadingBits the first two bits.
    WriterVocabulary::NameIndexes FindElementName(
        const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName)
    {
        return m_vocabulary.FindOrAddName(VocabularyTable::ElementNames, prefix, namespaceUri, localName);
    }
    void WriteElementIndex(unsigned int leadingBits, unsigned long index)
    {
        m_octets.PutCode(INTEGER_ON_BIT_3, index, leadingBits);
    }
    void WriteElementName(unsigned int leadingBits, const WriterVocabulary::NameIndexes& indexes,
        const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName);
    /// @}
    /// X.891, C.17.
    void WriteAttributeName(
        const std::wstring& prefix, const std::wstring& namespaceUri, const std::wstring& localName);
    /// X.891, C.14.
    void WriteAttributeValue(const std::wstring& value, ItemType type);
    /// Text of an element, with the bits that tell it from other children (X.891, C.7).
    /// @param text not empty.
    void WriteCharacterChunk(const std::wstring& text, ItemType type);

private:
    struct ValueForm;

    static const ValueForm ATTRIBUTE_VALUE;
    static const ValueForm CHARACTER_CHUNK;
    static constexpr unsigned long ALPHABET_COUNT = 2;

    void WriteIdentifyingString(unsigned long index, const std::wstring& text);
    void WriteName(unsigned int literalBits, const WriterVocabulary::NameIndexes& indexes, const std::wstring& prefix,
        const std::wstring& namespaceUri, const std::wstring& localName);
    void WriteValue(const ValueForm& form, const std::wstring& text, unsigned long maximumAddLength, ItemType type);
    void WriteEncodedString(const ValueForm& form, unsigned int leadingBits, const std::wstring& text, ItemType type);
    void WriteLiteral(const ValueForm& form, unsigned int leadingBits, const std::wstring& text);
    void WriteNumberedOctets(const ValueForm& form, unsigned int leadingBits, unsigned long number);
    const AlphabetPacker& GetPacker(unsigned long alphabet);

    const CFastInfosetContext& m_context;
    OctetWriter& m_octets;
    WriterVocabulary m_vocabulary;
    std::optional<AlphabetPacker> m_packers[ALPHABET_COUNT]; // made when needed
    std::vector<unsigned char> m_encoded;                    // reused
};

} // namespace ZrXmlLib16

#endif
