// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetReader.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/FormatSettings.h"
#include "fastinfoset/EncodedString.h"
#include "fastinfoset/FastInfosetHeader.h"
#include "fastinfoset/OctetReader.h"
#include "fastinfoset/ReaderVocabulary.h"
#include "fastinfoset/SkippedItems.h"
#include "streams/Utf8Decoding.h"
#include "xml/NodeAccess.h"
#include "xml/TreeBuilder.h"

#include <cstring>
#include <utility>
#include <vector>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned char NOT_AN_ELEMENT = 0x80;
constexpr unsigned char NOT_A_CHUNK = 0xC0;
constexpr unsigned char NOT_AN_ATTRIBUTE = 0x80;
constexpr unsigned char HAS_ATTRIBUTES = 0x40;
constexpr unsigned char HAS_PREFIX = 0x02;
constexpr unsigned char HAS_NAMESPACE = 0x01;

// Where a name or value may be an index or literal, and where a literal is to be entered into its table.
constexpr unsigned char INDEX_ON_BIT_1 = 0x80;
constexpr unsigned char INDEX_ON_BIT_3 = 0x20;
constexpr unsigned char ADD_ON_BIT_2 = 0x40;
constexpr unsigned char ADD_ON_BIT_4 = 0x10;

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

bool IsLiteralAttributeName(unsigned char octet)
{
    return (octet & 0x7C) == 0x78;
}

[[noreturn]] void ThrowInvalidElement()
{
    ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_ELEMENT);
}

/// What an index stands for.
/// @param found null when the table has no such entry, which is as wrong as an index that cannot be decoded.
template <class T> const T& RequireEntry(const T* found, const wchar_t* message)
{
    if (!found) {
        ThrowFastInfosetFailure(message);
    }
    return *found;
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

/// Decodes one document. The open elements are those of the document that is built: nothing here recurses.
class CFastInfosetReader::Decoder {
public:
    Decoder(const CFastInfosetContext& context, CXmlDocument& document, OctetString input);

    void Run();

private:
    void ReadContent();
    void ReadUntilRoot();
    void StartElement(unsigned char first);
    void EndElements(unsigned char terminator);
    void ReadNamespaceAttributes();
    void ReadAttributes(CXmlElement& element);
    void ReadAttributeValue(CXmlElement& element, const XmlName& name);
    void ReadChunk(unsigned char first);
    void ReadIndexedChunk(CXmlElement& element, std::uint64_t index);
    std::size_t DecodeUnits(OctetString content);

    const XmlName& ReadElementName(unsigned char first);
    const XmlName& ReadAttributeName(unsigned char first);
    struct NameParts {
        const std::wstring& namespaceUri;
        const std::wstring& localName;
    };
    NameParts ReadLiteralName(unsigned char first);
    const std::wstring& ReadIdentifyingString(TextTable& table);

    ValueTable::Value RequireValue(const ValueTable& table, std::uint64_t index, const wchar_t* message);
    void AddValue(ValueTable& table, const Utf16Unit* nodeUnits, std::size_t count);
    void CountIndexedText(std::size_t length);

    CXmlDocument& m_document;
    TreeBuilder m_tree;
    OctetReader m_input;
    ReaderVocabulary m_vocabulary;
    const unsigned long m_indexedTextLimit;
    unsigned long m_indexedText = 0; // characters that came into the document through an index
    std::vector<Utf16Unit> m_units;  // the literal that is being decoded
    std::wstring m_text;             // the same for encodings other than UTF-8
};

CFastInfosetReader::CFastInfosetReader(const CFastInfosetContext& context, CXmlDocument& document)
    : m_context(context)
    , m_document(document)
{
}

CFastInfosetReader::~CFastInfosetReader()
{
    Cleanup();
}

void CFastInfosetReader::Cleanup()
{
    m_decoder.reset();
}

bool CFastInfosetReader::HasHeader(const unsigned char* bytes, unsigned long length)
{
    return GetFastInfosetSignatureLength(bytes, length) != 0;
}

bool CFastInfosetReader::Parse()
{
    const unsigned char* const bytes = m_document.GetInputBuffer();
    const unsigned long length = m_document.GetInputSize();
    const unsigned long signature = bytes ? GetFastInfosetSignatureLength(bytes, length) : 0;
    if (signature == 0) {
        return false;
    }
    struct CleanupScope {
        ~CleanupScope() { reader.Cleanup(); }
        CFastInfosetReader& reader;
    };
    const CleanupScope scope = {*this};
    m_decoder.reset(new Decoder(m_context, m_document, {bytes + signature, length - signature}));
    m_decoder->Run();
    return true;
}

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
    ReadUntilRoot();
    ReadContent();
}

void CFastInfosetReader::Decoder::ReadUntilRoot()
{
    for (;;) {
        const unsigned char octet = m_input.Fetch();
        if (octet < NOT_AN_ELEMENT) {
            StartElement(octet);
            return;
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

// What follows the root is not looked at.
void CFastInfosetReader::Decoder::ReadContent()
{
    while (m_tree.HasOpenElement()) {
        const unsigned char octet = m_input.Fetch();
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
    }
}

void CFastInfosetReader::Decoder::StartElement(unsigned char first)
{
    unsigned char nameOctet = first;
    if (HasNamespaceAttributes(first)) {
        ReadNamespaceAttributes();
        nameOctet = m_input.Fetch();
    }
    const XmlName& name = ReadElementName(nameOctet);
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
        const std::uint64_t index = m_input.ReadIntegerOrZeroOnBit2(first);
        if (index == 0) {
            TreeBuilder::AddWideAttribute(element, name, std::wstring());
            return;
        }
        const ValueTable::Value value = RequireValue(
            m_vocabulary.GetAttributeValues(), index, FastInfosetReaderMessages::INVALID_INTEGER_OR_ZERO_ON_BIT_2);
        if (value.wide) {
            TreeBuilder::AddWideAttribute(element, name, *value.wide);
        } else {
            m_tree.AddSharedAttribute(element, name, value.units, value.length);
        }
        return;
    }
    const EncodedString literal = ReadEncodedStringOnBit3(m_input, first);
    const bool isAdded = first & ADD_ON_BIT_2;
    if (literal.encoding == EncodedString::Utf8) {
        const std::size_t count = DecodeUnits(literal.content);
        TreeBuilder::AddParsedAttribute(element, name, m_units.data(), count);
        if (isAdded) {
            AddValue(m_vocabulary.GetAttributeValues(), NodeAccess::FindLastValueUnits(element), count);
        }
        return;
    }
    m_text.clear();
    AppendEncodedString(m_text, literal, m_vocabulary.GetAlphabets());
    TreeBuilder::AddWideAttribute(element, name, m_text);
    if (isAdded) {
        m_vocabulary.GetAttributeValues().Add(m_text);
    }
}

void CFastInfosetReader::Decoder::ReadChunk(unsigned char first)
{
    CXmlElement& element = m_tree.RequireOpenElement();
    if (first & INDEX_ON_BIT_3) {
        ReadIndexedChunk(element, m_input.ReadIntegerOnBit4(first));
        return;
    }
    const EncodedString literal = ReadEncodedStringOnBit5(m_input, first);
    const bool isAdded = first & ADD_ON_BIT_4;
    if (literal.encoding == EncodedString::Utf8) {
        const std::size_t count = DecodeUnits(UpToNul(literal.content));
        NodeAccess::AppendUnits(element, m_units.data(), count);
        if (isAdded) {
            AddValue(m_vocabulary.GetCharacterChunks(), NodeAccess::FindTextUnits(element, count), count);
        }
        return;
    }
    m_text.clear();
    AppendEncodedString(m_text, literal, m_vocabulary.GetAlphabets());
    if (isAdded) {
        m_vocabulary.GetCharacterChunks().Add(m_text);
    }
    m_document.AppendTextExcludingCR(&element, m_text);
}

void CFastInfosetReader::Decoder::ReadIndexedChunk(CXmlElement& element, std::uint64_t index)
{
    const ValueTable::Value text =
        RequireValue(m_vocabulary.GetCharacterChunks(), index, FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_4);
    if (text.wide) {
        m_document.AppendTextExcludingCR(&element, *text.wide);
    } else if (NodeAccess::HasText(element) || ContainsCR(text.units, text.length)) {
        NodeAccess::AppendUnits(element, text.units, text.length);
    } else {
        NodeAccess::ShareText(element, text.units, text.length);
    }
}

ValueTable::Value CFastInfosetReader::Decoder::RequireValue(
    const ValueTable& table, std::uint64_t index, const wchar_t* message)
{
    ValueTable::Value value;
    if (!table.Find(index, value)) {
        ThrowFastInfosetFailure(message);
    }
    CountIndexedText(value.length);
    return value;
}

/// @param nodeUnits what has just been decoded as it lies in a node; null when it does not.
void CFastInfosetReader::Decoder::AddValue(ValueTable& table, const Utf16Unit* nodeUnits, std::size_t count)
{
    if (!nodeUnits && !table.IsFull()) {
        Arena& arena = m_tree.GetStorage().GetArena();
        auto* const copy = static_cast<Utf16Unit*>(arena.Allocate(count * sizeof(Utf16Unit), alignof(Utf16Unit)));
        std::copy_n(m_units.data(), count, copy);
        nodeUnits = copy;
    }
    table.Add(nodeUnits, count);
}

/// Decodes UTF-8 into m_units. @return the number of units.
std::size_t CFastInfosetReader::Decoder::DecodeUnits(OctetString content)
{
    if (m_units.size() < content.length) {
        m_units.resize(content.length);
    }
    return static_cast<std::size_t>(DecodeUtf8(content.octets, content.length, m_units.data()) - m_units.data());
}

const XmlName& CFastInfosetReader::Decoder::ReadElementName(unsigned char first)
{
    if (!IsLiteralElementName(first)) {
        return RequireEntry(m_vocabulary.FindElementName(m_input.ReadIntegerOnBit3(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_3);
    }
    const NameParts parts = ReadLiteralName(first);
    return m_vocabulary.AddElementName(parts.namespaceUri, parts.localName);
}

const XmlName& CFastInfosetReader::Decoder::ReadAttributeName(unsigned char first)
{
    if (!IsLiteralAttributeName(first)) {
        return RequireEntry(m_vocabulary.FindAttributeName(m_input.ReadIntegerOnBit2(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
    }
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
    const std::wstring& localName = ReadIdentifyingString(m_vocabulary.GetLocalNames());
    if (hasPrefix) {
        m_document.AddNamespaceDeclaration(prefix, namespaceUri);
    }
    return {namespaceUri, localName};
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
    std::wstring text;
    AppendUtf8(text, m_input.ReadStringOnBit2(first));
    return table.Add(std::move(text));
}

// An index of one octet may stand for a text of any length: without a limit a few kilobytes fill the memory.
void CFastInfosetReader::Decoder::CountIndexedText(std::size_t length)
{
    m_indexedText += length;
    if (m_indexedText > m_indexedTextLimit) {
        throw CZrException(FormatString(FastInfosetReaderMessages::TOO_MUCH_INDEXED_TEXT, m_indexedTextLimit));
    }
}

} // namespace ZrXmlLib16
