// SPDX-License-Identifier: MIT
// What most documents consist of: elements, attributes and texts, by index or in UTF-8.
#include "fastinfoset/FastInfosetDecoder.h"

#include "core/FormatSettings.h"
#include "fastinfoset/FastInfosetHeader.h"
#include "fastinfoset/SkippedItems.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16 {

namespace {

constexpr unsigned char NOT_A_CHUNK = 0xC0;
constexpr unsigned char NOT_AN_ATTRIBUTE = 0x80;
constexpr unsigned char HAS_ATTRIBUTES = 0x40;

// Where a name or value may be an index or literal, and where a literal is to be entered into its table.
constexpr unsigned char INDEX_ON_BIT_3 = 0x20;
constexpr unsigned char LONG_ON_BIT_3 = 0x20; // an index of more than one octet, or no index
constexpr unsigned char ADD_ON_BIT_2 = 0x40;
constexpr unsigned char ADD_ON_BIT_4 = 0x10;
// No bit of these is set for UTF-8.
constexpr unsigned char ENCODING_ON_BIT_3 = 0x30;
constexpr unsigned char ENCODING_ON_BIT_5 = 0x0C;

bool IsLiteralAttributeName(unsigned char octet)
{
    return (octet & 0x7C) == 0x78;
}

} // namespace

CFastInfosetReader::Decoder::Decoder(const CFastInfosetContext& context, CXmlDocument& document, OctetString input)
    : m_document(document)
    , m_tree(document)
    , m_input(input.octets, input.length)
    , m_vocabulary(context, m_tree.GetStorage().GetNames())
    , m_indexedTextLimit(CFormatSettings::MaximumExpansion(document.GetSerializationContext(), input.length))
{
}

void CFastInfosetReader::Decoder::Run()
{
    SkipOptionalComponents(m_input);
    ReadElement(FindRoot());
}

/// Reads the root and what is in it. What follows is not looked at.
void CFastInfosetReader::Decoder::ReadElement(unsigned char first)
{
    unsigned char octet = first;
    for (;; octet = m_input.Fetch()) {
        if (octet < NOT_AN_ELEMENT) {
            StartElement(octet);
        } else if (octet < NOT_A_CHUNK) {
            ReadChunk(octet);
        } else if (octet == TERMINATOR || octet == DOUBLE_TERMINATOR) {
            EndElements(octet);
        } else if (octet == PROCESSING_INSTRUCTION) {
            SkipProcessingInstruction(m_input);
        } else if (octet == COMMENT) {
            SkipComment(m_input);
        } else if (IsEntityReference(octet)) {
            SkipEntityReference(m_input, octet);
        } else {
            ThrowInvalidElement();
        }
        if (!m_tree.HasOpenElement()) {
            return;
        }
    }
}

void CFastInfosetReader::Decoder::StartElement(unsigned char first)
{
    const XmlName& name = ReadElementName(first);
    CXmlElement& element = m_tree.HasOpenElement() ? m_tree.OpenChild(name) : m_tree.OpenRoot(name);
    if (first & HAS_ATTRIBUTES) {
        ReadAttributes(element);
    }
}

void CFastInfosetReader::Decoder::EndElements(unsigned char terminator)
{
    m_tree.EndElement();
    if (terminator == DOUBLE_TERMINATOR && m_tree.HasOpenElement()) {
        m_tree.EndElement();
    }
}

void CFastInfosetReader::Decoder::ReadAttributes(CXmlElement& element)
{
    unsigned char octet = m_input.Fetch();
    for (; octet < NOT_AN_ATTRIBUTE; octet = m_input.Fetch()) {
        const XmlName& name = ReadAttributeName(octet);
        m_tree.CountName(name);
        ReadAttributeValue(element, name);
    }
    if (octet == DOUBLE_TERMINATOR) {
        m_tree.EndElement();
    } else if (octet != TERMINATOR) {
        ThrowInvalidElement();
    }
}

void CFastInfosetReader::Decoder::ReadAttributeValue(CXmlElement& element, const XmlName& name)
{
    const unsigned char first = m_input.Fetch();
    if (first & INDEX_ON_BIT_1) {
        ReadIndexedValue(element, name, m_input.ReadIntegerOrZeroOnBit2(first));
        return;
    }
    const bool isAdded = first & ADD_ON_BIT_2;
    if (first & ENCODING_ON_BIT_3) {
        AddEncodedValue(element, name, ReadEncodedStringOnBit3(m_input, first), isAdded);
        return;
    }
    const OctetString content = m_input.ReadStringOnBit5(first);
    if (const Utf16Unit* const units = DecodePlainText(content)) {
        AddPlainValue(element, name, units, content.length, isAdded);
    } else {
        AddLiteralValue(element, name, content, isAdded);
    }
}

void CFastInfosetReader::Decoder::ReadIndexedValue(CXmlElement& element, const XmlName& name, std::uint64_t index)
{
    const ValueTable& table = m_vocabulary.GetAttributeValues();
    if (const ValueTable::Units* const value = table.FindUnits(index)) {
        CountIndexedText(value->length);
        m_tree.AddSharedAttribute(element, name, value->units, value->length);
    } else if (index == 0) {
        TreeBuilder::AddWideAttribute(element, name, std::wstring());
    } else {
        const std::wstring& text =
            RequireEntry(table.FindText(index), FastInfosetReaderMessages::INVALID_INTEGER_OR_ZERO_ON_BIT_2);
        CountIndexedText(text.size());
        TreeBuilder::AddWideAttribute(element, name, text);
    }
}

void CFastInfosetReader::Decoder::ReadChunk(unsigned char first)
{
    CXmlElement& element = m_tree.RequireOpenElement();
    if (first & INDEX_ON_BIT_3) {
        ReadIndexedChunk(element, m_input.ReadIntegerOnBit4(first));
        return;
    }
    const bool isAdded = first & ADD_ON_BIT_4;
    if (first & ENCODING_ON_BIT_5) {
        AppendEncoded(element, ReadEncodedStringOnBit5(m_input, first), isAdded);
        return;
    }
    const OctetString content = m_input.ReadStringOnBit7(first);
    if (const Utf16Unit* const units = m_tree.CanShareText(element) ? DecodePlainText(content) : nullptr) {
        SetPlainText(element, units, content.length, isAdded);
    } else {
        AppendLiteral(element, content, isAdded);
    }
}

void CFastInfosetReader::Decoder::ReadIndexedChunk(CXmlElement& element, std::uint64_t index)
{
    const ValueTable& table = m_vocabulary.GetCharacterChunks();
    if (const ValueTable::Units* const chunk = table.FindUnits(index)) {
        CountIndexedText(chunk->length);
        if (m_tree.CanShareText(element)) {
            TreeBuilder::ShareText(element, chunk->units, chunk->length);
        } else {
            NodeAccess::AppendUnits(element, chunk->units, chunk->length);
        }
        return;
    }
    const std::wstring& text = RequireEntry(table.FindText(index), FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_4);
    CountIndexedText(text.size());
    m_document.AppendTextExcludingCR(&element, text);
}

const XmlName& CFastInfosetReader::Decoder::ReadElementName(unsigned char first)
{
    if (!(first & LONG_ON_BIT_3)) { // as most are
        return RequireEntry(m_vocabulary.FindElementName(m_input.ReadIntegerOnBit3(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_3);
    }
    return ReadLongElementName(first);
}

const XmlName& CFastInfosetReader::Decoder::ReadAttributeName(unsigned char first)
{
    if (!IsLiteralAttributeName(first)) {
        return RequireEntry(m_vocabulary.FindAttributeName(m_input.ReadIntegerOnBit2(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
    }
    return ReadLiteralAttributeName(first);
}

} // namespace ZrXmlLib16
