// SPDX-License-Identifier: MIT
// What a document has seldom or once: prologue, namespace attributes, names that are new, and texts that are not plain.
#include "fastinfoset/FastInfosetDecoder.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "fastinfoset/SkippedItems.h"
#include "streams/PlainText.h"
#include "streams/Utf8Decoding.h"
#include "xml/NodeAccess.h"

#include <algorithm>
#include <cstring>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned char HAS_PREFIX = 0x02;
constexpr unsigned char HAS_NAMESPACE = 0x01;

bool HasNamespaceAttributes(unsigned char octet)
{
    return (octet & 0x3C) == 0x38;
}

bool IsNamespaceAttribute(unsigned char octet)
{
    return (octet & 0xFC) == 0xCC;
}

bool IsLiteralElementName(unsigned char octet)
{
    return (octet & 0x3C) == 0x3C;
}

/// Element text ends at the first NUL, see CXmlDocument::AppendTextExcludingCR.
OctetString UpToNul(OctetString content)
{
    const void* const nul = std::memchr(content.octets, 0, content.length);
    return nul ? OctetString{content.octets,
               static_cast<unsigned long>(static_cast<const unsigned char*>(nul) - content.octets)}
               : content;
}

} // namespace

/// @return the first octet of the root.
unsigned char CFastInfosetReader::Decoder::FindRoot()
{
    for (;;) {
        const unsigned char octet = m_input.Fetch();
        if (octet < NOT_AN_ELEMENT) {
            return octet;
        }
        if (octet == PROCESSING_INSTRUCTION) {
            SkipProcessingInstruction(m_input);
        } else if (octet == COMMENT) {
            SkipComment(m_input);
        } else if (IsDocumentType(octet)) {
            SkipDocumentType(m_input, octet);
        } else if (octet == TERMINATOR || octet == DOUBLE_TERMINATOR) {
            ThrowFastInfosetFailure(FastInfosetReaderMessages::UNEXPECTED_END);
        } else {
            ThrowInvalidElement();
        }
    }
}

void CFastInfosetReader::Decoder::ReadNamespaceAttributes()
{
    unsigned char octet = m_input.Fetch();
    for (; IsNamespaceAttribute(octet); octet = m_input.Fetch()) {
        static const std::wstring absent;
        const std::wstring& prefix = octet & HAS_PREFIX ? ReadIdentifyingString(m_vocabulary.GetPrefixes()) : absent;
        const std::wstring& uri =
            octet & HAS_NAMESPACE ? ReadIdentifyingString(m_vocabulary.GetNamespaceNames()) : absent;
        m_document.AddNamespaceDeclaration(prefix, uri);
    }
    if (octet != TERMINATOR) {
        ThrowInvalidElement();
    }
}

const XmlName& CFastInfosetReader::Decoder::ReadLongElementName(unsigned char first)
{
    if (HasNamespaceAttributes(first)) {
        ReadNamespaceAttributes();
        first = m_input.Fetch();
    }
    if (!IsLiteralElementName(first)) {
        return RequireEntry(m_vocabulary.FindElementName(m_input.ReadIntegerOnBit3(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_3);
    }
    const NameParts parts = ReadLiteralName(first);
    return m_vocabulary.AddElementName(parts.namespaceUri, parts.localName);
}

const XmlName& CFastInfosetReader::Decoder::ReadLiteralAttributeName(unsigned char first)
{
    const NameParts parts = ReadLiteralName(first);
    return m_vocabulary.AddAttributeName(parts.namespaceUri, parts.localName);
}

// Prefix, namespace and local name come from different tables: none of the texts moves before the name is complete.
CFastInfosetReader::Decoder::NameParts CFastInfosetReader::Decoder::ReadLiteralName(unsigned char first)
{
    static const std::wstring absent;
    const bool hasPrefix = first & HAS_PREFIX;
    const bool hasNamespace = first & HAS_NAMESPACE;
    if (hasPrefix && !hasNamespace) {
        ThrowFastInfosetFailure(FastInfosetReaderMessages::PREFIX_WITHOUT_NAMESPACE);
    }
    const std::wstring& prefix = hasPrefix ? ReadIdentifyingString(m_vocabulary.GetPrefixes()) : absent;
    const std::wstring& namespaceUri = hasNamespace ? ReadIdentifyingString(m_vocabulary.GetNamespaceNames()) : absent;
    const LocalName localName = ReadLocalName();
    if (hasPrefix) {
        m_document.AddNamespaceDeclaration(prefix, namespaceUri);
    }
    return {namespaceUri, localName};
}

LocalName CFastInfosetReader::Decoder::ReadLocalName()
{
    const unsigned char first = m_input.Fetch();
    if (first & INDEX_ON_BIT_1) {
        const LocalName name = m_vocabulary.FindLocalName(m_input.ReadIntegerOnBit2(first));
        if (!name) {
            ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
        }
        CountIndexedText(name.text ? name.text->size() : name.length);
        return name;
    }
    const OctetString content = m_input.ReadStringOnBit2(first);
    if (const Utf16Unit* const units = DecodePlainText(content)) {
        m_vocabulary.GetLocalNames().Add(units, content.length);
        return {units, content.length, nullptr};
    }
    m_text = DecodeUtf8(content.octets, content.length);
    m_vocabulary.GetLocalNames().Add(m_text);
    return {nullptr, 0, &m_text};
}

const std::wstring& CFastInfosetReader::Decoder::ReadIdentifyingString(TextTable& table)
{
    const unsigned char first = m_input.Fetch();
    if (first & INDEX_ON_BIT_1) {
        const std::wstring& text = RequireEntry(
            table.Find(m_input.ReadIntegerOnBit2(first)), FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
        CountIndexedText(text.size());
        return text;
    }
    const OctetString content = m_input.ReadStringOnBit2(first);
    return table.Add(DecodeUtf8(content.octets, content.length));
}

void CFastInfosetReader::Decoder::AddEncodedValue(
    CXmlElement& element, const XmlName& name, const EncodedString& literal, bool isAdded)
{
    m_text.clear();
    AppendEncodedString(m_text, literal, m_vocabulary.GetAlphabets());
    if (const Utf16Unit* const units = StorePlainText()) {
        AddPlainValue(element, name, units, m_text.size(), isAdded);
        return;
    }
    TreeBuilder::AddWideAttribute(element, name, m_text);
    if (isAdded) {
        m_vocabulary.GetAttributeValues().Add(m_text);
    }
}

void CFastInfosetReader::Decoder::AddLiteralValue(
    CXmlElement& element, const XmlName& name, OctetString content, bool isAdded)
{
    const std::size_t count = DecodeUnits(content);
    TreeBuilder::AddParsedAttribute(element, name, m_units.data(), count);
    if (isAdded) {
        AddValue(m_vocabulary.GetAttributeValues(), NodeAccess::FindLastValueUnits(element), count);
    }
}

void CFastInfosetReader::Decoder::AppendEncoded(CXmlElement& element, const EncodedString& literal, bool isAdded)
{
    m_text.clear();
    AppendEncodedString(m_text, literal, m_vocabulary.GetAlphabets());
    if (const Utf16Unit* const units = m_tree.CanShareText(element) ? StorePlainText() : nullptr) {
        SetPlainText(element, units, m_text.size(), isAdded);
        return;
    }
    if (isAdded) {
        m_vocabulary.GetCharacterChunks().Add(m_text);
    }
    m_document.AppendTextExcludingCR(&element, m_text);
}

void CFastInfosetReader::Decoder::AppendLiteral(CXmlElement& element, OctetString content, bool isAdded)
{
    const std::size_t count = DecodeUnits(UpToNul(content));
    NodeAccess::AppendUnits(element, m_units.data(), count);
    if (isAdded) {
        AddValue(m_vocabulary.GetCharacterChunks(), NodeAccess::FindTextUnits(element, count), count);
    }
}

/// Enters what lies in m_units. Texts with carriage returns are wide: nodes take them without, or have them apart.
/// @param nodeUnits the same as it lies in a node; null when it does not.
void CFastInfosetReader::Decoder::AddValue(ValueTable& table, const Utf16Unit* nodeUnits, std::size_t count)
{
    if (table.IsFull()) {
        return;
    }
    if (count > LONGEST_SHARED_TEXT || ContainsCR(m_units.data(), count)) {
        table.Add(std::wstring(m_units.data(), m_units.data() + count));
        return;
    }
    if (!nodeUnits) {
        Arena& arena = m_tree.GetStorage().GetArena();
        auto* const copy = static_cast<Utf16Unit*>(arena.Allocate(count * sizeof(Utf16Unit), alignof(Utf16Unit)));
        std::copy_n(m_units.data(), count, copy);
        nodeUnits = copy;
    }
    table.Add(nodeUnits, count);
}

/// The same for what is in m_text.
const Utf16Unit* CFastInfosetReader::Decoder::StorePlainText()
{
    DocumentStorage& storage = m_tree.GetStorage();
    if (m_text.size() > LONGEST_SHARED_TEXT || !storage.KeepsTexts()) {
        return nullptr;
    }
    Arena& arena = storage.GetArena();
    Utf16Unit* const units = arena.FindRoom<Utf16Unit>(m_text.size());
    if (!units || !NarrowPlainText(m_text.data(), m_text.size(), units)) {
        return nullptr;
    }
    arena.Take(units + m_text.size());
    return units;
}

/// Decodes UTF-8 into m_units. @return the number of units.
std::size_t CFastInfosetReader::Decoder::DecodeUnits(OctetString content)
{
    if (m_units.size() < content.length) {
        m_units.resize(content.length);
    }
    return static_cast<std::size_t>(DecodeUtf8(content.octets, content.length, m_units.data()) - m_units.data());
}

void CFastInfosetReader::Decoder::ThrowInvalidElement()
{
    ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_ELEMENT);
}

void CFastInfosetReader::Decoder::ThrowTooMuchIndexedText() const
{
    throw CZrException(FormatString(FastInfosetReaderMessages::TOO_MUCH_INDEXED_TEXT, m_indexedTextLimit));
}

} // namespace ZrXmlLib16
