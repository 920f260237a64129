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
#include "streams/PlainText.h"
#include "streams/Utf8Decoding.h"
#include "xml/NodeAccess.h"
#include "xml/TreeBuilder.h"

#include <algorithm>
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
constexpr unsigned char LONG_ON_BIT_3 = 0x20; // an index of more than one octet, or no index
constexpr unsigned char ADD_ON_BIT_2 = 0x40;
constexpr unsigned char ADD_ON_BIT_4 = 0x10;
// No bit of these is set for UTF-8.
constexpr unsigned char ENCODING_ON_BIT_3 = 0x30;
constexpr unsigned char ENCODING_ON_BIT_5 = 0x0C;

/// Longer texts are rare, and what nodes share must not reach the limit of NodeText.
constexpr std::size_t LONGEST_SHARED_TEXT = std::size_t(1) << 30;

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
    struct NameParts {
        const std::wstring& namespaceUri;
        const std::wstring& localName;
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
    ReadElement(FindRoot());
}

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

void CFastInfosetReader::Decoder::AddPlainValue(
    CXmlElement& element, const XmlName& name, const Utf16Unit* units, std::size_t length, bool isAdded)
{
    m_tree.AddSharedAttribute(element, name, units, length);
    if (isAdded) {
        m_vocabulary.GetAttributeValues().Add(units, length);
    }
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

void CFastInfosetReader::Decoder::SetPlainText(
    CXmlElement& element, const Utf16Unit* units, std::size_t length, bool isAdded)
{
    TreeBuilder::ShareText(element, units, length);
    if (isAdded) {
        m_vocabulary.GetCharacterChunks().Add(units, length);
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

/// Decodes most texts where they will stay, in the memory of the document; null for any other.
const Utf16Unit* CFastInfosetReader::Decoder::DecodePlainText(OctetString content)
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

const XmlName& CFastInfosetReader::Decoder::ReadElementName(unsigned char first)
{
    if (!(first & LONG_ON_BIT_3)) { // as most are
        return RequireEntry(m_vocabulary.FindElementName(m_input.ReadIntegerOnBit3(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_3);
    }
    return ReadLongElementName(first);
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

const XmlName& CFastInfosetReader::Decoder::ReadAttributeName(unsigned char first)
{
    if (!IsLiteralAttributeName(first)) {
        return RequireEntry(m_vocabulary.FindAttributeName(m_input.ReadIntegerOnBit2(first)),
            FastInfosetReaderMessages::INVALID_INTEGER_ON_BIT_2);
    }
    return ReadLiteralAttributeName(first);
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
    const OctetString content = m_input.ReadStringOnBit2(first);
    return table.Add(DecodeUtf8(content.octets, content.length));
}

void CFastInfosetReader::Decoder::ThrowTooMuchIndexedText() const
{
    throw CZrException(FormatString(FastInfosetReaderMessages::TOO_MUCH_INDEXED_TEXT, m_indexedTextLimit));
}

// An index of one octet may stand for a text of any length: without a limit a few kilobytes fill the memory.
void CFastInfosetReader::Decoder::CountIndexedText(std::size_t length)
{
    m_indexedText += length;
    if (m_indexedText > m_indexedTextLimit) {
        ThrowTooMuchIndexedText();
    }
}

} // namespace ZrXmlLib16
