// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_FASTINFOSETDECODER_H
#define FASTINFOSET_FASTINFOSETDECODER_H

#include "ZrXmlLib16/FastInfosetReader.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "fastinfoset/EncodedString.h"
#include "fastinfoset/OctetReader.h"
#include "fastinfoset/ReaderVocabulary.h"
#include "streams/PlainText.h"
#include "xml/TreeBuilder.h"

#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Decodes one document, as FastInfosetDecoder.cpp and, for what is rare, FastInfosetRareItems.cpp do it.
///
/// The open elements are those of the document that is built: nothing here recurses.
class __attribute__((visibility("hidden"))) CFastInfosetReader::Decoder {
public:
    Decoder(const CFastInfosetContext& context, CXmlDocument& document, OctetString input);

    void Run();

private:
    static constexpr unsigned char NOT_AN_ELEMENT = 0x80;
    static constexpr unsigned char INDEX_ON_BIT_1 = 0x80; // a name or value that is not literal
    /// Longer texts are rare, and what nodes share must not reach the limit of NodeText.
    static constexpr std::size_t LONGEST_SHARED_TEXT = std::size_t(1) << 30;

    struct NameParts {
        const std::wstring& namespaceUri;
        LocalName localName;
    };

    unsigned char FindRoot();
    void ReadElement(unsigned char first);
    // In line is what runs for most nodes, apart what is rare.
    inline void StartElement(unsigned char first);
    inline const XmlName& ReadElementName(unsigned char first);
    [[gnu::noinline]] const XmlName& ReadLongElementName(unsigned char first);
    void ReadNamespaceAttributes();
    void EndElements(unsigned char terminator);
    NameParts ReadLiteralName(unsigned char first);
    const std::wstring& ReadIdentifyingString(TextTable& table);
    LocalName ReadLocalName();

    void ReadAttributes(CXmlElement& element);
    inline const XmlName& ReadAttributeName(unsigned char first);
    [[gnu::noinline]] const XmlName& ReadLiteralAttributeName(unsigned char first);
    inline void ReadAttributeValue(CXmlElement& element, const XmlName& name);
    inline void ReadIndexedValue(CXmlElement& element, const XmlName& name, std::uint64_t index);
    inline void AddPlainValue(
        CXmlElement& element, const XmlName& name, const Utf16Unit* units, std::size_t length, bool isAdded);
    [[gnu::noinline]] void AddLiteralValue(
        CXmlElement& element, const XmlName& name, OctetString content, bool isAdded);
    [[gnu::noinline]] void AddEncodedValue(
        CXmlElement& element, const XmlName& name, const EncodedString& literal, bool isAdded);

    inline void ReadChunk(unsigned char first);
    void ReadIndexedChunk(CXmlElement& element, std::uint64_t index);
    inline void SetPlainText(CXmlElement& element, const Utf16Unit* units, std::size_t length, bool isAdded);
    [[gnu::noinline]] void AppendLiteral(CXmlElement& element, OctetString content, bool isAdded);
    [[gnu::noinline]] void AppendEncoded(CXmlElement& element, const EncodedString& literal, bool isAdded);

    inline const Utf16Unit* DecodePlainText(OctetString content);
    const Utf16Unit* StorePlainText();
    std::size_t DecodeUnits(OctetString content);
    void AddValue(ValueTable& table, const Utf16Unit* nodeUnits, std::size_t count);
    void CountIndexedText(std::size_t length);
    [[noreturn]] void ThrowTooMuchIndexedText() const;
    [[noreturn]] static void ThrowInvalidElement();

    /// What an index stands for.
    /// @param found null when the table has no such entry, which is as wrong as an index that cannot be decoded.
    template <class T> static const T& RequireEntry(const T* found, const wchar_t* message)
    {
        if (!found) {
            ThrowFastInfosetFailure(message);
        }
        return *found;
    }

    CXmlDocument& m_document;
    TreeBuilder m_tree;
    OctetReader m_input;
    ReaderVocabulary m_vocabulary;
    const unsigned long m_indexedTextLimit;
    unsigned long m_indexedText = 0; // characters that came into the document through an index
    std::vector<Utf16Unit> m_units;  // the literal that is being decoded
    std::wstring m_text;             // the same for encodings other than UTF-8
};

/// Decodes most texts where they will stay, in the memory of the document; null for any other.
inline const Utf16Unit* CFastInfosetReader::Decoder::DecodePlainText(OctetString content)
{
    DocumentStorage& storage = m_tree.GetStorage();
    if (m_input.GetRest() < PLAIN_BLOCK || content.length > LONGEST_SHARED_TEXT || !storage.KeepsTexts()) {
        return nullptr;
    }
    Arena& arena = storage.GetArena();
    Utf16Unit* const units = arena.FindRoom<Utf16Unit>(content.length + PLAIN_BLOCK);
    if (!units || !WidenPlainText(content.octets, content.length, units)) {
        return nullptr;
    }
    arena.Take(units + content.length);
    return units;
}

inline void CFastInfosetReader::Decoder::AddPlainValue(
    CXmlElement& element, const XmlName& name, const Utf16Unit* units, std::size_t length, bool isAdded)
{
    m_tree.AddSharedAttribute(element, name, units, length);
    if (isAdded) {
        m_vocabulary.GetAttributeValues().Add(units, length);
    }
}

inline void CFastInfosetReader::Decoder::SetPlainText(
    CXmlElement& element, const Utf16Unit* units, std::size_t length, bool isAdded)
{
    TreeBuilder::ShareText(element, units, length);
    if (isAdded) {
        m_vocabulary.GetCharacterChunks().Add(units, length);
    }
}

// An index of one octet may stand for a text of any length: without a limit a few kilobytes fill the memory.
inline void CFastInfosetReader::Decoder::CountIndexedText(std::size_t length)
{
    m_indexedText += length;
    if (m_indexedText > m_indexedTextLimit) {
        ThrowTooMuchIndexedText();
    }
}

} // namespace ZrXmlLib16

#endif
